#include "commands/CommandSearch.h"

#include <gtest/gtest.h>

#include "commands/CommandSamples.h"
#include "commands/PlainSearch.h"

namespace tovrel {
namespace {

using samples::assortedCommands;
using samples::menuCommand;
using samples::shellCommand;

class CommandSearchTest : public testing::Test {
  protected:
    std::vector<std::pair<std::string, std::int64_t>> found(std::string_view query,
                                                            const std::vector<Command>& commands) {
        const CommandSearchIndex index(commands, services_);
        std::vector<std::pair<std::string, std::int64_t>> rows;
        for (const CommandSearchResult& result : CommandSearch().search(query, index)) {
            rows.emplace_back(result.command.title.utf8(), result.score);
        }
        return rows;
    }

    TextServices services_{"en_US"};
};

using Rows = std::vector<std::pair<std::string, std::int64_t>>;

TEST_F(CommandSearchTest, TiersAndTheCutOff) {
    const std::vector<Command> commands{menuCommand({"Edit", "Insert Table"}),
                                        menuCommand({"Edit", "Disable"}), menuCommand({"Edit", "Save"})};
    EXPECT_EQ(found("sa", commands), (Rows{{"Save", 780}, {"Disable", 680}}));
    EXPECT_EQ(found("save", commands), (Rows{{"Save", 900}}));
    EXPECT_EQ(found("fs", {menuCommand({"File", "Save"})}), (Rows{{"Save", 320}}));
    EXPECT_EQ(found("zx", {menuCommand({"A", "Zaaaaaax"})}), Rows{});      // a span of 8, limit 6
    EXPECT_EQ(found("zx", {menuCommand({"A", "Zaaaax"})}).size(), 1U);     // 6
    EXPECT_EQ(found("ab", {menuCommand({"O", "AxxxxxxxAB"})}).size(), 1U); // but contained
    EXPECT_EQ(found("axb", {menuCommand({"O", "AcxcccccAxcb"})}), Rows{}); // the earliest start counts

    Command aliased = menuCommand({"File", "Save"});
    aliased.aliases = {"savefile"};
    EXPECT_EQ(found("save", {aliased}), (Rows{{"Save", 900}}));
    aliased.aliases = {"save"};
    EXPECT_EQ(found("save", {aliased}), (Rows{{"Save", 1000}}));
    aliased.aliases = {"Write Out"};
    EXPECT_EQ(found("wo", {aliased}), (Rows{{"Save", 420}}));
    aliased.isEnabled = false;
    EXPECT_EQ(found("save", {aliased}), Rows{});
}

TEST_F(CommandSearchTest, ShortcutTextsAreSearchedToo) {
    EXPECT_EQ(found("s", {menuCommand({"File", "Sort"}), menuCommand({"File", "Keep"}, "⌘S")}),
              (Rows{{"Keep", 900}, {"Sort", 780}}));
    EXPECT_EQ(found("space", {menuCommand({"File", "Keep"}, "⌘Space")}), (Rows{{"Keep", 900}}));
}

TEST_F(CommandSearchTest, BoostsAddUpAndRank) {
    Command often = menuCommand({"File", "Save"});
    often.rankSignals = {.isFavorite = false, .usageCount = 3, .lastUsedAt = PointInTime{0}};
    Command favorite = menuCommand({"File", "Sabotage"});
    favorite.rankSignals = {.isFavorite = true, .usageCount = INT64_MAX, .lastUsedAt = PointInTime{0}};
    EXPECT_EQ(found("sa", {often, favorite}), (Rows{{"Sabotage", 780 + 225}, {"Save", 780 + 49}}));

    // A negative count, which only a damaged history has, can lower a match below the cut-off.
    Command damaged = menuCommand({"File", "Saturn"});
    damaged.rankSignals.usageCount = -1000;
    EXPECT_EQ(found("satu", {damaged, menuCommand({"Sa", "Txxxu"})}),
              (Rows{{"Txxxu", 320}, {"Saturn", 780 - 8000}}));
    // However low its score is, the command is found and the others are ranked.
    damaged.rankSignals = {.isFavorite = true, .usageCount = -2'000'000'000'000'000'000, .lastUsedAt = {}};
    EXPECT_EQ(found("satu", {damaged, menuCommand({"Sa", "Txxxu"})}),
              (Rows{{"Txxxu", 320}, {"Saturn", INT64_MIN + 120 + 780}}));
    EXPECT_EQ(found("", {damaged, shellCommand("Backup", "make backup")}), (Rows{{"Backup", 100}}));
}

TEST_F(CommandSearchTest, NothingTypedListsTheMostRelevant) {
    std::vector<Command> commands{menuCommand({"File", "Plain"}), menuCommand({"File", "Save"}, "⌘S"),
                                  shellCommand("Backup", "make backup")};
    const Rows expected{{"Backup", 100}, {"Save", 80}};
    EXPECT_EQ(found("", commands), expected);
    EXPECT_EQ(found("   ", commands), expected);
    EXPECT_EQ(found("…", commands), expected);
    for (int i = 0; i < 30; ++i) {
        commands.push_back(menuCommand({"File", "Item " + std::to_string(i)}, "⌘I"));
    }
    EXPECT_EQ(found("", commands).size(), 20U);
    EXPECT_EQ(found("item", commands).size(), 30U);
    EXPECT_EQ(found("x", {}), Rows{});
}

TEST_F(CommandSearchTest, EqualScoresGoByTitleThenByMenuOrder) {
    Command first = menuCommand({"A", "Same"});
    Command second = menuCommand({"B", "same"});
    const CommandSearchIndex index({menuCommand({"Z", "Zoom Same"}), second, first,
                                    menuCommand({"Z", "Énd Same"}), menuCommand({"Z", "end Same"})},
                                   services_);
    std::vector<std::string> ids;
    for (const CommandSearchResult& result : CommandSearch().search("same", index)) {
        ids.push_back(result.command.id.utf8().substr(std::string("menu:org.example.Editor:").size()));
    }
    EXPECT_EQ(ids, (std::vector<std::string>{"B/same", "A/Same", "Z/end Same", "Z/Énd Same", "Z/Zoom Same"}));
}

TEST_F(CommandSearchTest, GraphemeClustersCountAsOneCharacter) {
    // Each letter with its vowel sign counts as one character for the limit, and the bare letter never
    // matches it.
    const std::vector<Command> commands{menuCommand({"अ", "किxxxxमी"})};
    EXPECT_EQ(found("किमी", commands).size(), 1U);
    EXPECT_EQ(found("किम", commands), Rows{});
    EXPECT_EQ(found("किमी", {menuCommand({"अ", "किxxxxxमी"})}), Rows{}); // span 7, limit 6
    // A key whose last character continues in a longer key still matches by itself.
    Command aliased = menuCommand({"अ", "x"});
    aliased.aliases = {"मअक", "मअकिy"};
    EXPECT_EQ(found("मक", {aliased}), (Rows{{"x", 420}}));
}

TEST_F(CommandSearchTest, AgreesWithThePlainAlgorithmWhileAQueryIsTyped) {
    std::mt19937 random(20011); // a fixed seed: a failure can be repeated
    const TextServices turkish("tr_TR");
    const TextServices azerbaijani("az");
    for (const TextServices* services :
         {static_cast<const TextServices*>(&services_), &turkish, &azerbaijani}) {
        const std::vector<Command> commands = assortedCommands(random, 150);
        const CommandSearchIndex index(commands, *services);
        CommandSearch search;
        for (const char* typed : {"save as",   "sav",      "fs",          "edition coller",
                                  "файл с",    "fajlso",   "fairu",       "保存",
                                  "데이",      "ab4",      "ee",          "s2",
                                  "кс",        "हि",       "किता",        "iz",
                                  "ız",        "e\u0301n", "deta",        "xyz",
                                  "alpha",     "hangug",   "shellscript", "seifiru",
                                  "bb",        "q",        "…",           "🎨f",
                                  "insert ım", "INSERT",   "Indeks",      "ındeks",
                                  "IZGARA",    "dış",      "iıI"}) {
            std::string query;
            for (const std::string_view character : services->graphemeClusters(typed)) {
                query += character;
                const std::vector<plain::Result> expected = plain::search(query, commands, *services);
                const CommandSearchResults actual = search.search(query, index);
                ASSERT_EQ(actual.size(), expected.size()) << query;
                for (std::size_t i = 0; i < expected.size(); ++i) {
                    ASSERT_EQ(&actual[i].command, &index.commands()[expected[i].command])
                        << query << " row " << i;
                    ASSERT_EQ(actual[i].score, expected[i].score) << query << " row " << i;
                }
            }
        }
    }
}

TEST_F(CommandSearchTest, EnglishApplicationsInATurkishLocale) {
    const TextServices turkish("tr_TR");
    const CommandSearchIndex index({menuCommand({"Edit", "Insert Image"}), menuCommand({"Düzen", "Izgara"}),
                                    menuCommand({"Düzen", "İndir"}), menuCommand({"Правка", "Индекс"})},
                                   turkish);
    CommandSearch search;
    const auto best = [&](std::string_view query) {
        const CommandSearchResults results = search.search(query, index);
        return results.empty() ? ""
                               : results[0].command.title.utf8() + " " + std::to_string(results[0].score);
    };
    EXPECT_EQ(best("insert"), "Insert Image 780");
    EXPECT_EQ(best("ınsert"), "Insert Image 780"); // by the locale's rules as before
    EXPECT_EQ(best("insertimage"), "Insert Image 900");
    EXPECT_EQ(best("INSERT I"), "Insert Image 780");
    EXPECT_EQ(best("ızgara"), "Izgara 900");
    EXPECT_EQ(best("izgara"), "Izgara 900");
    EXPECT_EQ(best("INDIR"), "İndir 900");
    EXPECT_EQ(best("indeks"), "Индекс 900");
}

TEST_F(CommandSearchTest, WhatItRemembersNeverOutlivesTheIndex) {
    CommandSearch search;
    const CommandSearchIndex one({menuCommand({"File", "Save"})}, services_);
    EXPECT_EQ(search.search("s", one).size(), 1U);
    const CommandSearchIndex two({menuCommand({"File", "Print"}), menuCommand({"File", "Save"})}, services_);
    EXPECT_EQ(search.search("sa", two)[0].score, 780);
    EXPECT_EQ(search.search("pr", two)[0].score, 780); // does not extend the query before
    EXPECT_EQ(search.search("sa", one)[0].score, 780);
}

} // namespace
} // namespace tovrel
