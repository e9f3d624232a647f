#pragma once

#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/UserInterface.h"

namespace tovrel {

/// A line of a status menu as it is shown; a separator has no title.
struct ShownMenuLine {
    Text title;
    std::optional<Text> keyEquivalent;

    friend bool operator==(const ShownMenuLine&, const ShownMenuLine&) = default;
};

/// What each user interface promises of its status item. A rig has one that can have such an item, and
/// offers, of the item that was made last:
///
///     UserInterface& userInterface()
///     bool hasMenu()                      whether it is still there
///     std::vector<ShownMenuLine> lines()
///     void openMenu()                     as the user does it
///     void choose(std::size_t line)       the same
template <typename Rig>
class StatusItemContract : public testing::Test {};

TYPED_TEST_SUITE_P(StatusItemContract);

TYPED_TEST_P(StatusItemContract, ShowsItsLinesWhileItIsThereAndDoesWhatIsChosen) {
    TypeParam rig;
    std::vector<std::string> chosen;
    const auto choosing = [&](const char* name) { return [&chosen, name] { chosen.emplace_back(name); }; };
    auto item = rig.userInterface().makeStatusItem(
        {.imageName = "MenuBarIcon",
         .toolTip = "Tovrel",
         .menu = {{"Open Palette", std::nullopt, "magnifyingglass", choosing("open")},
                  {"Settings…", Text(","), "gearshape", choosing("settings")},
                  {},
                  {"Quit Tovrel", Text("q"), "power", choosing("quit")}}});
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(rig.lines(), (std::vector<ShownMenuLine>{{"Open Palette", std::nullopt},
                                                       {"Settings…", Text(",")},
                                                       {"", std::nullopt},
                                                       {"Quit Tovrel", Text("q")}}));
    item->setToolTip("Tovrel\nThe shortcut is not available");
    rig.choose(3);
    rig.choose(0);
    rig.choose(2);
    EXPECT_EQ(chosen, (std::vector<std::string>{"quit", "open"}));
    EXPECT_TRUE(rig.hasMenu());
    item.reset();
    EXPECT_FALSE(rig.hasMenu());
}

TYPED_TEST_P(StatusItemContract, TellsWhenItsMenuOpensAndCloses) {
    TypeParam rig;
    UserInterface& userInterface = rig.userInterface();
    std::vector<bool> told;
    std::vector<bool> toldBeforeAction;
    const auto item = userInterface.makeStatusItem(
        {.imageName = "", .toolTip = "", .menu = {{"Quit", std::nullopt, "", [&] {
                                                       toldBeforeAction = told;
                                                   }}}});
    Subscription tracking = userInterface.onMenuTracking([&](bool isOpen) { told.push_back(isOpen); });
    userInterface.closeMenu();
    EXPECT_EQ(told, std::vector<bool>()) << "none is open";
    rig.openMenu();
    EXPECT_EQ(told, std::vector{true});
    userInterface.closeMenu();
    userInterface.closeMenu();
    EXPECT_EQ(told, (std::vector{true, false}));
    rig.openMenu();
    rig.choose(0);
    EXPECT_EQ(told, (std::vector{true, false, true, false}));
    EXPECT_EQ(toldBeforeAction, told);
    tracking = {};
    rig.openMenu();
    userInterface.closeMenu();
    EXPECT_EQ(told.size(), 4U);
}

REGISTER_TYPED_TEST_SUITE_P(StatusItemContract, ShowsItsLinesWhileItIsThereAndDoesWhatIsChosen,
                            TellsWhenItsMenuOpensAndCloses);

} // namespace tovrel
