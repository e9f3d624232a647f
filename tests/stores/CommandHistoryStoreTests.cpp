#include "stores/CommandHistoryStore.h"

#include <limits>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "stores/FailingPreferencesDomain.h"

namespace tovrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* storageKey = "Tovrel.commandHistory";

class CommandHistory : public testing::Test {
  protected:
    void putDocument(const std::string& document) { domain.set(storageKey, PreferenceData{document}); }
    std::optional<std::string> document() { return dataValue(domain, storageKey); }

    std::vector<std::string> orderedIDs() {
        std::vector<std::string> ids;
        for (const CommandHistoryEntry& entry : store.entries()) {
            ids.push_back(entry.commandID.utf8());
        }
        return ids;
    }

    FailingPreferencesDomain domain;
    TextServices text{"en_US"};
    CommandHistoryStore store{domain, storageKey, text};
};

TEST_F(CommandHistory, CountsUsesAndKeepsTheTimeOfTheLastCall) {
    EXPECT_EQ(store.rankSignals("A"), CommandRankSignals{});
    EXPECT_THAT(store.entries(), IsEmpty());
    EXPECT_EQ(document(), std::nullopt); // reading writes nothing

    store.recordUse("A", {20.5});
    EXPECT_EQ(document(), R"({"A":{"isFavorite":false,"lastUsedAt":20.5,"usageCount":1}})");
    store.recordUse("A", {10});
    EXPECT_EQ(store.rankSignals("A"), (CommandRankSignals{false, 2, PointInTime{10}}));
    EXPECT_EQ(store.rankSignals("a"), CommandRankSignals{}); // case counts

    store.clear();
    EXPECT_EQ(document(), std::nullopt);
    EXPECT_THAT(store.entries(), IsEmpty());
}

TEST_F(CommandHistory, MarksFavouritesWithAndWithoutARecord) {
    store.setFavorite(true, "A");
    EXPECT_EQ(document(), R"({"A":{"isFavorite":true,"usageCount":0}})");
    store.recordUse("A", {1});
    store.setFavorite(false, "A");
    EXPECT_EQ(store.rankSignals("A"), (CommandRankSignals{false, 1, PointInTime{1}}));
    store.setFavorite(false, "B");
    EXPECT_EQ(store.entries().size(), 2U);
    EXPECT_EQ(store.entries().back(), (CommandHistoryEntry{"B", 0, std::nullopt, false}));
}

TEST_F(CommandHistory, EntriesAreOrderedByTimeThenCountThenID) {
    putDocument(R"({"A": {"usageCount": 1, "isFavorite": false, "lastUsedAt": 10},
               "B": {"usageCount": 1, "isFavorite": false, "lastUsedAt": 20},
               "menu:x": {"usageCount": 5, "isFavorite": false, "lastUsedAt": null},
               "menu:É": {"usageCount": 5, "isFavorite": false},
               "MENU:f": {"usageCount": 5, "isFavorite": true},
               "Z": {"usageCount": 0, "isFavorite": true},
               "E": {"usageCount": 3, "isFavorite": false, "lastUsedAt": 20},
               "before": {"usageCount": 9, "isFavorite": false, "lastUsedAt": -1e9},
               "zero": {"usageCount": 9, "isFavorite": false, "lastUsedAt": 0}})");
    EXPECT_THAT(orderedIDs(),
                ElementsAre("E", "B", "A", "zero", "before", "menu:É", "MENU:f", "menu:x", "Z"));
}

TEST_F(CommandHistory, ADocumentWithOneBadElementReadsAsEmptyAndIsReplacedByTheNextChange) {
    const std::string good = R"("A": {"usageCount": 7, "isFavorite": true, "unknown": [1]})";
    putDocument("{" + good + "}");
    EXPECT_EQ(store.rankSignals("A").usageCount, 7);
    for (const char* bad :
         {R"("B": {"usageCount": 1})", R"("B": {"isFavorite": true})", R"("B": null)",
          R"("B": {"usageCount": 1.5, "isFavorite": true})",
          R"("B": {"usageCount": "1", "isFavorite": true})",
          R"("B": {"usageCount": true, "isFavorite": true})", R"("B": {"usageCount": 1, "isFavorite": 1})",
          R"("B": {"usageCount": 9223372036854775808, "isFavorite": true})",
          R"("B": {"usageCount": 1, "isFavorite": true, "lastUsedAt": "10"})",
          R"("B": {"usageCount": 1, "isFavorite": true, "lastUsedAt": 1e999})",
          "\"\xFF\": {\"usageCount\": 1, \"isFavorite\": true}", "\"B\": "}) {
        putDocument("{" + good + ", " + bad + "}");
        EXPECT_THAT(store.entries(), IsEmpty()) << bad;
        EXPECT_EQ(store.rankSignals("A"), CommandRankSignals{}) << bad;
    }
    for (const char* bad : {"", "not JSON", "[]", "null", "\"A\"", "{} {}"}) {
        putDocument(bad);
        EXPECT_THAT(store.entries(), IsEmpty()) << bad;
        EXPECT_EQ(document(), bad); // unchanged until something is written
    }
    store.recordUse("B", {5});
    EXPECT_EQ(document(), R"({"B":{"isFavorite":false,"lastUsedAt":5,"usageCount":1}})");

    domain.set(storageKey, Text("{" + good + "}")); // a string is no data
    EXPECT_THAT(store.entries(), IsEmpty());
}

TEST_F(CommandHistory, IDsCompareByCanonicalEquivalence) {
    putDocument("{\"menu:E\u0301dition\": {\"usageCount\": 1, \"isFavorite\": true}}");
    EXPECT_TRUE(store.rankSignals("menu:\u00c9dition").isFavorite);
    store.recordUse("menu:\u00c9dition", {1});
    EXPECT_EQ(store.entries(),
              (std::vector<CommandHistoryEntry>{{"menu:\u00c9dition", 2, PointInTime{1}, true}}));
}

TEST_F(CommandHistory, AChangeThatCannotBeEncodedOrStoredChangesNothing) {
    store.recordUse("A", {1});
    const auto before = document();
    store.recordUse("A", {std::numeric_limits<double>::quiet_NaN()});
    store.recordUse("B", {std::numeric_limits<double>::infinity()});
    EXPECT_EQ(document(), before);
    EXPECT_EQ(store.entries(), (std::vector<CommandHistoryEntry>{{"A", 1, PointInTime{1}, false}}));

    domain.refusesWrites = true;
    store.recordUse("A", {2});
    store.setFavorite(true, "B");
    EXPECT_EQ(store.rankSignals("A"), (CommandRankSignals{false, 1, PointInTime{1}}));
    EXPECT_EQ(store.entries().size(), 1U);

    domain.refusesWrites = false;
    store.recordUse("A", {3}); // counts from what is stored
    EXPECT_EQ(store.rankSignals("A"), (CommandRankSignals{false, 2, PointInTime{3}}));
}

TEST_F(CommandHistory, IsReadOncePerChangeAndNeverStale) {
    CommandHistoryStore other(domain, storageKey, text);
    store.recordUse("A", {1});
    EXPECT_EQ(store.rankSignals("A").usageCount, 1);
    const int readCount = domain.readCount;
    const auto snapshot = store.snapshot();
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(store.rankSignals("A").usageCount, 1);
    }
    EXPECT_EQ(domain.readCount, readCount);
    EXPECT_EQ(store.snapshot(), snapshot);

    // Another key changes: the bytes are compared, and the decoded history stays.
    domain.set("other key", true);
    EXPECT_EQ(store.snapshot(), snapshot);

    other.recordUse("A", {2});
    EXPECT_EQ(store.rankSignals("A").usageCount, 2);
    EXPECT_EQ(snapshot->rankSignals("A").usageCount, 1); // a snapshot does not change
    putDocument("{}");
    EXPECT_EQ(store.rankSignals("A").usageCount, 0);
    other.recordUse("A", {3});
    domain.remove(storageKey);
    EXPECT_THAT(store.entries(), IsEmpty());
    EXPECT_THAT(other.entries(), IsEmpty());
}

TEST_F(CommandHistory, ADocumentThatCouldNotBeReadIsReadAgain) {
    struct : FailingPreferencesDomain {
        // The lock comes after the revision is read. NOLINTNEXTLINE(bugprone-parent-virtual-call)
        [[nodiscard]] std::uint64_t revision() override { return MemoryPreferencesDomain::revision(); }
    } locked;
    CommandHistoryStore here(locked, storageKey, text);
    CommandHistoryStore elsewhere(locked, storageKey, text);
    here.recordUse("A", {1});
    elsewhere.recordUse("A", {2});
    locked.refusesReads = true;
    EXPECT_EQ(here.rankSignals("A").usageCount, 0);
    locked.refusesReads = false;
    EXPECT_EQ(here.rankSignals("A").usageCount, 2);
}

TEST_F(CommandHistory, ADamagedCountGoesOnAndStopsAtTheLargestNumber) {
    putDocument(R"({"A": {"usageCount": 9223372036854775806, "isFavorite": false},
                    "B": {"usageCount": -2000000000000000000, "isFavorite": false}})");
    for (int use = 0; use < 2; ++use) {
        store.recordUse("A", {1});
        EXPECT_EQ(store.rankSignals("A").usageCount, INT64_MAX);
    }
    store.recordUse("B", {1});
    EXPECT_EQ(store.rankSignals("B").usageCount, -1'999'999'999'999'999'999);
}

TEST_F(CommandHistory, AChangeWhileItIsReadIsSeenTheNextTime) {
    class ChangingDomain : public MemoryPreferencesDomain {
      public:
        std::optional<PreferenceValue> value(const std::string& key) override {
            auto before = MemoryPreferencesDomain::value(key);
            set(key, PreferenceData{R"({"A": {"usageCount": 2, "isFavorite": false}})"}); // another process
            return before;
        }
    } changing;
    changing.set(storageKey, PreferenceData{R"({"A": {"usageCount": 1, "isFavorite": false}})"});
    CommandHistoryStore reader(changing, storageKey, text);
    EXPECT_EQ(reader.rankSignals("A").usageCount, 1);
    EXPECT_EQ(reader.rankSignals("A").usageCount, 2);
}

} // namespace
} // namespace tovrel
