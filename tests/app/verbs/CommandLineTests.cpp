#include "app/verbs/CommandLine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovrel::command_line {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

Parsed parsed(std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "tovrel");
    return parse(static_cast<int>(arguments.size()), arguments.data());
}

Invocation invocation(const std::vector<const char*>& arguments) {
    const Parsed result = parsed(arguments);
    if (const auto* wrong = std::get_if<WrongUsage>(&result)) {
        ADD_FAILURE() << wrong->message;
        return {};
    }
    return std::get<Invocation>(result);
}

std::string wrongUsage(const std::vector<const char*>& arguments) {
    const Parsed result = parsed(arguments);
    const auto* wrong = std::get_if<WrongUsage>(&result);
    return wrong == nullptr ? "understood" : wrong->message;
}

TEST(CommandLine, QueriesArriveAsTheyWereTyped) {
    EXPECT_THAT(invocation({"search", "save", ""}).queries, ElementsAre("save", ""));
    EXPECT_THAT(invocation({"search", "a", "--", "-b", "--help", "", "--", "[x]", "--string="}).queries,
                ElementsAre("a", "-b", "--help", "", "--", "[x]", "--string="));
    EXPECT_THAT(
        invocation({"search", "[a,b]", "[]", "++", "+", "%%", "{}", "\x01", "-", "search", "menus"}).queries,
        ElementsAre("[a,b]", "[]", "++", "+", "%%", "{}", "\x01", "-", "search", "menus"));
    EXPECT_THAT(invocation({"search", "a", "--limit", "3", "b", "--json"}).queries, ElementsAre("a", "b"));
}

TEST(CommandLine, OptionsStandBeforeOrAfterTheVerb) {
    const Invocation after = invocation({"search", "x", "--recording", "-", "--preferences=p.sqlite",
                                         "--locale", "tr", "--json", "--limit", "0"});
    EXPECT_EQ(after.verb, Verb::search);
    EXPECT_EQ(after.source.recordingFile, "-");
    EXPECT_EQ(after.preferencesFile, "p.sqlite");
    EXPECT_EQ(after.localeIdentifier, "tr");
    EXPECT_TRUE(after.asJson);
    EXPECT_EQ(after.limit, 0U);

    const Invocation before = invocation({"--pid", "2147483647", "--preferences", "p", "menus"});
    EXPECT_EQ(before.verb, Verb::menus);
    EXPECT_EQ(before.source.processIdentifier, 2147483647);
    EXPECT_EQ(before.preferencesFile, "p");
    EXPECT_EQ(before.limit, std::nullopt);

    EXPECT_EQ(invocation({"record", "--app", "org.xfce.mousepad"}).source.bundleIdentifier,
              "org.xfce.mousepad");
    EXPECT_EQ(invocation({"press", "--", "-odd id"}).commandID, "-odd id");
    EXPECT_EQ(invocation({"commands"}).verb, Verb::commands);
}

TEST(CommandLine, PreferencesVerbsAndValues) {
    const Invocation json = invocation({"preferences", "write", "customCommands", "--json", "[1,2]"});
    EXPECT_EQ(json.verb, Verb::preferences);
    EXPECT_EQ(json.preferences.verb, PreferencesVerb::write);
    EXPECT_EQ(json.preferences.key, "customCommands");
    EXPECT_EQ(json.preferences.value.json, "[1,2]");
    EXPECT_FALSE(json.asJson);
    EXPECT_EQ(invocation({"preferences", "write", "k", "--string="}).preferences.value.string, "");
    EXPECT_EQ(invocation({"preferences", "write", "k", "--string", "-x"}).preferences.value.string, "-x");
    EXPECT_EQ(invocation({"preferences", "write", "k", "--bool", "true"}).preferences.value.boolean, "true");
    EXPECT_EQ(invocation({"preferences", "write", "--data", "{", "--", "-k"}).preferences.key, "-k");
    EXPECT_TRUE(invocation({"preferences", "read", "k", "--json"}).asJson);
    EXPECT_EQ(invocation({"preferences", "delete", "k"}).preferences.verb, PreferencesVerb::remove);
    EXPECT_EQ(invocation({"preferences", "list"}).preferences.verb, PreferencesVerb::list);
    EXPECT_EQ(invocation({"preferences", "export"}).preferences.verb, PreferencesVerb::exportAll);
    EXPECT_EQ(invocation({"preferences", "--preferences", "p", "import"}).preferences.verb,
              PreferencesVerb::importAll);
}

TEST(CommandLine, WrongUsageSaysWhatAndWhereHelpIs) {
    EXPECT_EQ(invocation({}).verb, Verb::run);
    EXPECT_EQ(wrongUsage({"--pid", "1"}),
              "none of --recording, --pid and --app is taken here; see tovrel --help");
    EXPECT_THAT(wrongUsage({"--app", "x", "status"}), HasSubstr("is taken here; see tovrel status --help"));
    EXPECT_EQ(wrongUsage({"frobnicate"}), "unknown argument \"frobnicate\"; see tovrel --help");
    EXPECT_EQ(wrongUsage({"search"}), "QUERY is required; see tovrel search --help");
    EXPECT_EQ(wrongUsage({"search", "x", "--frob"}), "unknown argument \"--frob\"; see tovrel search --help");
    EXPECT_EQ(wrongUsage({"menus", "[x]"}), "unknown argument \"[x]\"; see tovrel menus --help");
    EXPECT_EQ(wrongUsage({"menus", "--pid", "1", "--recording", "f"}),
              "give only one of --recording, --pid and --app; see tovrel menus --help");
    EXPECT_THAT(wrongUsage({"--pid", "1", "menus", "--app", "f"}), HasSubstr("give only one of"));
    EXPECT_THAT(wrongUsage({"preferences", "frob"}), HasSubstr("\"frob\"; see tovrel preferences --help"));
    EXPECT_THAT(wrongUsage({"preferences"}), HasSubstr("is missing; see tovrel preferences --help"));
    EXPECT_THAT(wrongUsage({"preferences", "write"}), HasSubstr("see tovrel preferences write --help"));
    EXPECT_THAT(wrongUsage({"--pid", "1", "preferences", "list"}), HasSubstr("is taken here"));
    EXPECT_THAT(wrongUsage({"menus", "--recording"}), HasSubstr("--recording takes one value, once"));
    EXPECT_THAT(wrongUsage({"menus", "--pid", "1", "--pid", "2"}), HasSubstr("--pid takes one value, once"));
    EXPECT_THAT(wrongUsage({"menus", "--recording", ""}), HasSubstr("is empty"));
    for (const char* number : {"", "x", "0", "-1", "1.0", " 1", "1x", "2147483648", "99999999999999999999"}) {
        EXPECT_THAT(wrongUsage({"menus", "--pid", number}), HasSubstr("not a whole number from 1 up"))
            << number;
    }
    EXPECT_THAT(wrongUsage({"search", "x", "--limit", "-1"}), HasSubstr("not a whole number from 0 up"));
}

TEST(CommandLine, EveryVerbHasHelp) {
    const auto help = [](const std::vector<const char*>& arguments) {
        return std::get<Information>(parsed(arguments)).text;
    };
    EXPECT_THAT(help({"--help"}), HasSubstr("preferences"));
    EXPECT_THAT(help({"search", "--help"}), HasSubstr("--limit"));
    EXPECT_THAT(help({"preferences", "write", "--help"}), HasSubstr("--bool"));
    for (const char* verb : {"menus", "commands", "search", "press", "record"}) {
        EXPECT_THAT(help({verb, "--help"}), HasSubstr("--recording")) << verb;
    }
    EXPECT_THAT(help({"--version"}), testing::MatchesRegex("tovrel [0-9.]+\n"));
}

} // namespace
} // namespace tovrel::command_line
