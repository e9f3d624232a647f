#pragma once

#include <optional>

#include <gtest/gtest.h>

#include "platform/UserInterface.h"

namespace tovrel {

/// What each user interface promises; of its status item see StatusItemContract.h. A rig has one, on a
/// desktop with a screen, and offers:
///
///     UserInterface& userInterface()
///     AlertAnswer ask(AlertAnswer, whileAsked)   asks a question with two answers, which the user gives so
///                                         after `whileAsked` was called; the answer that was told
///     void showWindow()                   one of this application, without giving it the keyboard
///     bool isActive()                     whether this application has the keyboard
///     void turnAway()                     to another application, as the user does it
///     bool until(condition)               lets the main thread work until the condition holds
///     bool endsMainLoop(task)             whether the main loop ends when it runs the task
template <typename Rig>
class UserInterfaceContract : public testing::Test {};

TYPED_TEST_SUITE_P(UserInterfaceContract);

TYPED_TEST_P(UserInterfaceContract, AsksOneQuestionAtATimeAndTellsItsAnswer) {
    TypeParam rig;
    UserInterface& userInterface = rig.userInterface();
    for (const AlertAnswer answer :
         {AlertAnswer::firstButton, AlertAnswer::secondButton, AlertAnswer::none}) {
        bool wasAsked = false;
        const auto whileAsked = [&] {
            wasAsked = true;
            EXPECT_TRUE(userInterface.isAlertOpen());
            EXPECT_EQ(userInterface.runAlert({"Another?", "", "Yes", "No"}), AlertAnswer::none);
            EXPECT_TRUE(userInterface.isAlertOpen());
        };
        EXPECT_FALSE(userInterface.isAlertOpen());
        EXPECT_EQ(rig.ask(answer, whileAsked), answer);
        EXPECT_TRUE(wasAsked);
    }
    EXPECT_FALSE(userInterface.isAlertOpen());
}

TYPED_TEST_P(UserInterfaceContract, ComesToTheFrontAndTellsWhenItNoLongerIs) {
    TypeParam rig;
    UserInterface& userInterface = rig.userInterface();
    int told = 0;
    int toldOthers = 0;
    Subscription first = userInterface.onResignActive([&] { ++told; });
    const Subscription second = userInterface.onResignActive([&] { ++toldOthers; });
    for (const int round : {1, 2}) {
        rig.showWindow();
        EXPECT_FALSE(rig.isActive());
        userInterface.activate();
        ASSERT_TRUE(rig.until([&] { return rig.isActive(); }));
        EXPECT_EQ(toldOthers, round - 1);
        rig.turnAway();
        ASSERT_TRUE(rig.until([&] { return toldOthers == round; }));
        EXPECT_EQ(told, 1);
        first = {};
    }
}

TYPED_TEST_P(UserInterfaceContract, KnowsTheScreenOnWhichTheUserWorks) {
    TypeParam rig;
    const std::optional<Screen> screen = rig.userInterface().mainScreen();
    ASSERT_TRUE(screen);
    EXPECT_GT(screen->visibleSize.width, 0);
    EXPECT_GT(screen->visibleSize.height, 0);
    EXPECT_EQ(rig.userInterface().mainScreen()->identifier, screen->identifier) << "it is still the same";
}

TYPED_TEST_P(UserInterfaceContract, EndsTheMainLoop) {
    TypeParam rig;
    EXPECT_TRUE(rig.endsMainLoop([&] { rig.userInterface().terminate(); }));
}

REGISTER_TYPED_TEST_SUITE_P(UserInterfaceContract, AsksOneQuestionAtATimeAndTellsItsAnswer,
                            ComesToTheFrontAndTellsWhenItNoLongerIs, KnowsTheScreenOnWhichTheUserWorks,
                            EndsTheMainLoop);

} // namespace tovrel
