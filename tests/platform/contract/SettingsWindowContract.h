#pragma once

#include <functional>
#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include "settings/SettingsTab.h"
#include "settings/SettingsViewState.h"
#include "settings/SettingsWindow.h"

namespace tovrel {

/// What each window of the settings promises. A rig has one, and offers:
///
///     SettingsWindow& window()
///     std::shared_ptr<SettingsViewModel> makeModel()   over stores of the rig
///     bool isVisible(), bool isKey()      whether it has the keyboard
///     SettingsTab shownTab()              the page that is to be seen
///     void drag()                         to another place, as the user does it
///     auto place()                        where it stands
///     void close()                        as the user does it
///     bool until(condition)               lets the main thread work until the condition holds
template <typename Rig>
class SettingsWindowContract : public testing::Test {};

TYPED_TEST_SUITE_P(SettingsWindowContract);

TYPED_TEST_P(SettingsWindowContract, IsHiddenUntilShownAndWhenClosedAndComesBackAsItWas) {
    TypeParam rig;
    rig.window().setContent(std::make_unique<SettingsViewState>(rig.makeModel()));
    EXPECT_FALSE(rig.isVisible());
    EXPECT_FALSE(rig.isKey());
    rig.window().showAndMakeKey();
    EXPECT_TRUE(rig.isVisible());
    ASSERT_TRUE(rig.until([&] { return rig.isKey(); }));
    rig.drag();
    const auto place = rig.place();
    rig.close();
    EXPECT_FALSE(rig.isVisible());
    EXPECT_FALSE(rig.isKey());
    rig.window().showAndMakeKey();
    EXPECT_TRUE(rig.isVisible());
    EXPECT_EQ(rig.place(), place);
    ASSERT_TRUE(rig.until([&] { return rig.isKey(); }));
    rig.window().showAndMakeKey();
    EXPECT_TRUE(rig.isVisible() && rig.isKey()) << "shown twice";
}

TYPED_TEST_P(SettingsWindowContract, ShowsTheStateItKeepsAndDropsTheOneBefore) {
    TypeParam rig;
    std::weak_ptr<SettingsViewModel> model;
    const auto install = [&](SettingsTab tab) {
        const auto made = rig.makeModel();
        model = made;
        auto content = std::make_unique<SettingsViewState>(made);
        SettingsViewState& state = *content;
        state.selectedTab.set(tab);
        rig.window().setContent(std::move(content));
        return std::ref(state);
    };
    SettingsViewState& first = install(SettingsTab::search);
    const std::weak_ptr<SettingsViewModel> before = model;
    rig.window().showAndMakeKey();
    EXPECT_TRUE(rig.until([&] { return rig.shownTab() == SettingsTab::search; }));
    first.selectedTab.set(SettingsTab::appRules);
    EXPECT_TRUE(rig.until([&] { return rig.shownTab() == SettingsTab::appRules; }));
    rig.close();
    rig.window().showAndMakeKey();
    EXPECT_EQ(rig.shownTab(), SettingsTab::appRules) << "closing changes nothing of it";
    EXPECT_FALSE(before.expired());

    install(SettingsTab::general);
    EXPECT_TRUE(before.expired());
    EXPECT_FALSE(model.expired());
    EXPECT_TRUE(rig.isVisible());
    EXPECT_TRUE(rig.until([&] { return rig.shownTab() == SettingsTab::general; }));
}

REGISTER_TYPED_TEST_SUITE_P(SettingsWindowContract, IsHiddenUntilShownAndWhenClosedAndComesBackAsItWas,
                            ShowsTheStateItKeepsAndDropsTheOneBefore);

} // namespace tovrel
