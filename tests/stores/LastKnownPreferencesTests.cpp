#include "stores/LastKnownPreferences.h"

#include <gtest/gtest.h>

#include "stores/CommandHistoryStore.h"
#include "stores/FailingPreferencesDomain.h"
#include "stores/PaletteSettingsStore.h"
#include "stores/RulesStore.h"

namespace tovrel {
namespace {

class LastKnownPreferencesTest : public testing::Test {
  protected:
    TextServices text_{"en_US"};
    FailingPreferencesDomain stored_;
    LastKnownPreferences preferences_{stored_};
};

TEST_F(LastKnownPreferencesTest, AnUnreadableValueIsTheLastKnownOne) {
    RulesStore rules(preferences_, text_);
    CommandHistoryStore history(preferences_, "history", text_);
    rules.setBehavior(AppBehaviorRule::disabled, "editor");
    history.recordUse("A", {1});
    stored_.set("seen", true);
    EXPECT_EQ(preferences_.value("seen"), PreferenceValue(true));
    LastKnownPreferences startedNow(stored_);
    stored_.set("removed", true);
    EXPECT_TRUE(preferences_.remove("removed"));

    stored_.refusesReads = true;
    EXPECT_EQ(LastKnownPreferences(stored_).value("seen"), std::nullopt);
    stored_.set("unseen", true);
    EXPECT_EQ(rules.behavior("editor"), AppBehaviorRule::disabled);
    EXPECT_EQ(history.rankSignals("A").usageCount, 1);
    EXPECT_EQ(preferences_.value("seen"), PreferenceValue(true));
    EXPECT_FALSE(preferences_.lastReadSucceeded());
    EXPECT_EQ(preferences_.value("removed"), std::nullopt);
    EXPECT_EQ(preferences_.value("unseen"), std::nullopt);
    EXPECT_EQ(startedNow.value("seen"), PreferenceValue(true)) << "known from the start";
}

TEST_F(LastKnownPreferencesTest, WhatIsServedFromMemoryReplacesNothingThatAnotherProcessStored) {
    CommandHistoryStore history(preferences_, "history", text_);
    CommandHistoryStore elsewhere(stored_, "history", text_);
    history.recordUse("A", {1});
    elsewhere.recordUse("A", {2});
    stored_.refusesReads = true; // a write alone would still be possible
    history.recordUse("B", {3});
    history.setFavorite(true, "A");
    stored_.refusesReads = false;
    EXPECT_EQ(elsewhere.entries(), (std::vector<CommandHistoryEntry>{{"A", 2, PointInTime{2}, false}}));
    history.recordUse("B", {4});
    EXPECT_EQ(elsewhere.rankSignals("A").usageCount, 2);
    EXPECT_EQ(elsewhere.rankSignals("B").usageCount, 1);
}

TEST_F(LastKnownPreferencesTest, WholeValuesCanBeSetAsSoonAsTheStoreCanBeReadAgain) {
    stored_.refusesReads = true;
    PaletteSettingsStore palette(preferences_, "palette");
    RulesStore rules(preferences_, text_);
    EXPECT_EQ(rules.defaultBehavior(), AppBehaviorRule::enabled);
    palette.setShowCheckedStatus(false);
    EXPECT_TRUE(preferences_.unstoredChange().get());
    stored_.refusesReads = false;
    palette.setShowCheckedStatus(false);
    EXPECT_EQ(stored_.value("palette.showCheckedStatus"), PreferenceValue(false));
    rules.setDefaultBehavior(AppBehaviorRule::automatic);
    EXPECT_EQ(rules.defaultBehavior(), AppBehaviorRule::automatic);
}

TEST_F(LastKnownPreferencesTest, TheLastChangeIsToldUntilOneIsStored) {
    int told = 0;
    const Subscription subscription = preferences_.unstoredChange().subscribe([&] { ++told; });
    EXPECT_TRUE(preferences_.set("key", true));
    EXPECT_EQ(told, 0);
    stored_.refusesWrites = true;
    EXPECT_FALSE(preferences_.set("key", false));
    EXPECT_EQ(preferences_.unstoredChange().get(), stored_.failure);
    EXPECT_EQ(preferences_.value("key"), PreferenceValue(true));
    EXPECT_FALSE(preferences_.remove("key"));
    EXPECT_EQ(told, 2);
    stored_.refusesWrites = false;
    EXPECT_TRUE(preferences_.setAll({{"key", false}}));
    EXPECT_EQ(preferences_.unstoredChange().get(), std::nullopt);
    EXPECT_EQ(told, 3);
}

} // namespace
} // namespace tovrel
