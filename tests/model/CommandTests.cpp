#include "model/Command.h"

#include <gtest/gtest.h>

#include "commands/CommandSamples.h"
#include "support/JsonDocument.h"

namespace tovrel {
namespace {

using samples::menuCommand;
using samples::shellCommand;

std::optional<Command> decoded(std::string_view text) {
    return json::decodeDocument(text, commandFrom);
}

TEST(Command, EqualityLooksAtEveryField) {
    const Command command = menuCommand({"Édition", "Copier"}, "⌘C");
    EXPECT_EQ(command, menuCommand({"E\u0301dition", "Copier"}, "⌘C"));
    Command other = command;
    other.rankSignals.usageCount = 4;
    EXPECT_NE(command, other);
    EXPECT_NE(CommandAction(MenuAction{{"File", "Save"}}), CommandAction(MenuAction{{"File", "Save", ""}}));
    EXPECT_NE(CommandAction(MenuAction{{}}), CommandAction(CustomCommand{}));
}

TEST(Command, JsonRoundTripLeavesAbsentOptionalsOut) {
    Command command = menuCommand({"File", "Save / \"As\"\n"}, "⌘⇧S");
    command.rankSignals = {.isFavorite = true, .usageCount = 3, .lastUsedAt = PointInTime{690000000.25}};
    command.aliases = {"write"};
    EXPECT_EQ(decoded(json::dump(toJson(command))), command);

    const Command custom = shellCommand("Backup", "make backup");
    const json::Value value = toJson(custom);
    EXPECT_EQ(decoded(json::dump(value)), custom);
    EXPECT_FALSE(value.contains("shortcut") || value.contains("appScope"));
    EXPECT_EQ(value["action"]["custom"]["_0"]["kind"], "shellScript");
    EXPECT_EQ(toJson(command)["action"].dump(), R"({"menu":{"path":["File","Save / \"As\"\n"]}})");
    EXPECT_EQ(json::dump(toJson(CommandRankSignals{})), R"({"isFavorite":false,"usageCount":0})");
}

TEST(Command, TheDecoderRefusesIncompleteOrMistypedDocuments) {
    json::Value whole = toJson(menuCommand({"File", "Save"}));
    const auto reads = [](const json::Value& value) { return decoded(json::dump(value)).has_value(); };
    EXPECT_TRUE(reads(whole));
    json::Value changed = whole;
    changed.erase("subtitle");
    EXPECT_TRUE(reads(changed));
    changed["subtitle"] = nullptr;
    changed["unknown"] = 1;
    EXPECT_TRUE(reads(changed));
    for (const char* required : {"id", "source", "title", "menuPath", "aliases", "searchTokens", "isEnabled",
                                 "isChecked", "rankSignals", "action"}) {
        changed = whole;
        changed.erase(required);
        EXPECT_FALSE(reads(changed)) << required;
        changed[required] = nullptr;
        EXPECT_FALSE(reads(changed)) << required;
    }
    changed = whole;
    changed["source"] = "Menu";
    EXPECT_FALSE(reads(changed));
    changed = whole;
    changed["rankSignals"]["usageCount"] = true;
    EXPECT_FALSE(reads(changed));
    changed["rankSignals"]["usageCount"] = 2.5;
    EXPECT_FALSE(reads(changed));
    changed["rankSignals"]["usageCount"] = 2.0;
    EXPECT_TRUE(reads(changed));
    changed["isEnabled"] = 1;
    EXPECT_FALSE(reads(changed));
}

TEST(Command, AnActionHasExactlyOneKey) {
    const auto messageOf = [](const char* text) -> std::string {
        try {
            commandActionFrom(json::parse(text));
        } catch (const json::DecodeError& error) {
            return error.what();
        }
        return "";
    };
    const std::string expected = "Invalid number of keys found, expected one.";
    EXPECT_EQ(messageOf("{}"), expected);
    EXPECT_EQ(messageOf(R"({"menu":{"path":[]},"custom":{"_0":{}}})"), expected);
    EXPECT_EQ(messageOf(R"({"menu":{"path":[]},"other":1})"), "");
}

} // namespace
} // namespace tovrel
