#include "windows/QtUserInterface.h"

#include <QAction>
#include <QGuiApplication>
#include <QQuickView>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/QtMainQueue.h"
#include "qt/QtText.h"
#include "windows/QtStatusItem.h"
#include "windows/QtWindowSystem.h"
#include "windows/ScreenCoordinates.h"

namespace tovrel {
namespace {

using std::chrono_literals::operator""ms;
using testing::ElementsAre;

class QtUserInterfaceTest : public testing::Test {
  protected:
    /// Shows an alert, acts on its window once it can be used, and returns the answer.
    AlertAnswer answerAfter(const std::function<void(QQuickView&)>& act) {
        QTimer::singleShot(0, [&] {
            const auto windows = QGuiApplication::topLevelWindows();
            for (QWindow* window : windows) {
                if (auto* view = qobject_cast<QQuickView*>(window); view != nullptr && view->isVisible()) {
                    EXPECT_TRUE(QTest::qWaitForWindowActive(view));
                    act(*view);
                }
            }
        });
        return userInterface_.runAlert({.messageText = "Run “Backup”?",
                                        .informativeText = "This shell command can run actions.",
                                        .firstButton = "Run",
                                        .secondButton = "Cancel"});
    }

    ViewEngine engine_;
    QtWindowSystem windowSystem_;
    QtUserInterface userInterface_{engine_, windowSystem_};
};

TEST_F(QtUserInterfaceTest, AlertsAreAnsweredByKeysAndClicks) {
    const auto keys = [](std::vector<Qt::Key> pressed) {
        return [pressed = std::move(pressed)](QQuickView& view) {
            for (const Qt::Key key : pressed) {
                QTest::keyClick(&view, key);
            }
        };
    };
    EXPECT_EQ(answerAfter(keys({Qt::Key_Return})), AlertAnswer::firstButton);
    EXPECT_EQ(answerAfter(keys({Qt::Key_Enter})), AlertAnswer::firstButton);
    EXPECT_EQ(answerAfter(keys({Qt::Key_Space})), AlertAnswer::firstButton);
    EXPECT_EQ(answerAfter(keys({Qt::Key_Escape})), AlertAnswer::none);
    EXPECT_EQ(answerAfter(keys({Qt::Key_Tab, Qt::Key_Return})), AlertAnswer::secondButton);
    EXPECT_EQ(answerAfter(keys({Qt::Key_Left, Qt::Key_Space})), AlertAnswer::secondButton);
    EXPECT_EQ(answerAfter(keys({Qt::Key_Left, Qt::Key_Right, Qt::Key_Return})), AlertAnswer::firstButton);
    EXPECT_EQ(answerAfter(keys({Qt::Key_Tab, Qt::Key_Escape})), AlertAnswer::none);
    EXPECT_EQ(answerAfter([](QQuickView& view) { view.close(); }), AlertAnswer::none);
    // The first button is in the lower right corner.
    const auto clickFirst = [](QQuickView& view) {
        QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(view.width() - 60, view.height() - 44));
    };
    EXPECT_EQ(answerAfter(clickFirst), AlertAnswer::firstButton);
    const auto clickSecond = [](QQuickView& view) {
        QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(view.width() - 200, view.height() - 44));
    };
    EXPECT_EQ(answerAfter(clickSecond), AlertAnswer::secondButton);
}

TEST_F(QtUserInterfaceTest, AnAlertIsCentredOnTheWindowThatAsksAndKeepsKeysFromIt) {
    QWindow owner;
    owner.setGeometry(300, 200, 400, 300);
    owner.show();
    owner.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&owner));
    const auto whileAsking = [&](QQuickView& view) {
        EXPECT_TRUE(userInterface_.isAlertOpen());
        EXPECT_EQ(view.transientParent(), &owner);
        EXPECT_EQ(view.modality(), Qt::ApplicationModal);
        EXPECT_LE((view.frameGeometry().center() - owner.frameGeometry().center()).manhattanLength(), 2);
        EXPECT_EQ(userInterface_.runAlert({}), AlertAnswer::none) << "not asked meanwhile";
        view.close();
    };
    EXPECT_EQ(answerAfter(whileAsking), AlertAnswer::none);
    EXPECT_FALSE(userInterface_.isAlertOpen());
}

TEST_F(QtUserInterfaceTest, EventsGoOnDuringAnAlert) {
    QtMainQueue queue;
    bool ran = false;
    queue.postAfter(1ms, [&] { ran = true; });
    const auto closeAfterTask = [&](QQuickView& view) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return ran; }));
        view.close();
    };
    EXPECT_EQ(answerAfter(closeAfterTask), AlertAnswer::none);
}

TEST_F(QtUserInterfaceTest, ScreensAreMeasuredUpwardsFromThePrimaryOne) {
    const QScreen& primary = *QGuiApplication::primaryScreen();
    const QRect geometry = primary.geometry();
    const Screen main = userInterface_.mainScreen().value();
    EXPECT_EQ(main.visibleSize.width, geometry.width());
    EXPECT_EQ(screenNamed(qtString(main.identifier)), &primary);
    EXPECT_EQ(screenNamed("nowhere"), nullptr);
    EXPECT_EQ(upwards(primary.availableGeometry(), primary).origin, (Point{0, 0}));
    EXPECT_EQ(upwards(QRect(10, 20, 100, 50), primary), (Rect{{10, geometry.height() - 70.0}, {100, 50}}));
    // A window put where a rectangle was measured has that rectangle.
    for (const QRect& rect :
         {QRect(10, 20, 100, 50), QRect(-1900, -300, 680, 460), QRect(3000, 2000, 7, 9)}) {
        EXPECT_EQ(downwards(upwards(rect, primary).origin, rect.size(), primary), rect.topLeft());
    }
    EXPECT_EQ(screenOf(QRect(5, 5, 10, 10)), &primary);
    EXPECT_EQ(screenOf(QRect(-500, -500, 10, 10)), nullptr);
}

TEST_F(QtUserInterfaceTest, TheStatusMenuHasWhatItWasMadeWith) {
    std::vector<std::string> chosen;
    std::vector<bool> tracked;
    const Subscription tracking =
        userInterface_.onMenuTracking([&](bool isOpen) { tracked.push_back(isOpen); });
    const auto choosing = [&](const char* name) { return [&chosen, name] { chosen.emplace_back(name); }; };
    const auto item = userInterface_.makeStatusItem(
        {.imageName = "MenuBarIcon",
         .toolTip = "Tovrel",
         .menu = {{"Open Palette", std::nullopt, "magnifyingglass", choosing("open")},
                  {"Settings…", Text(","), "gearshape", choosing("settings")},
                  {},
                  {"Quit Tovrel", Text("q"), "power", choosing("quit")}}});
    ASSERT_NE(item, nullptr);
    QMenu& menu = static_cast<QtStatusItem&>(*item).menu();
    const QList<QAction*> actions = menu.actions();
    ASSERT_EQ(actions.size(), 4);
    EXPECT_EQ(actions[0]->text(), "Open Palette");
    EXPECT_TRUE(actions[0]->shortcut().isEmpty());
    EXPECT_FALSE(actions[0]->icon().isNull());
    EXPECT_EQ(actions[1]->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Comma));
    EXPECT_TRUE(actions[2]->isSeparator());
    EXPECT_EQ(actions[3]->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q));
    for (QAction* action : actions) {
        action->trigger();
    }
    EXPECT_THAT(chosen, ElementsAre("open", "settings", "quit"));
    menu.popup({});
    QTest::keyClick(&menu, Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_THAT(chosen, ElementsAre("open", "settings", "quit", "settings"));
    menu.popup({});
    userInterface_.closeMenu();
    EXPECT_THAT(tracked, ElementsAre(true, false, true, false));
}

TEST(QtMainQueueTest, TasksRunLaterInTheirOrderAndNotAfterTheQueueIsGone) {
    std::vector<int> ran;
    auto queue = std::make_unique<QtMainQueue>();
    const auto running = [&](int number) { return [&ran, number] { ran.push_back(number); }; };
    queue->postAfter(30ms, running(4));
    queue->postAfter(30ms, running(5));
    queue->post(running(1));
    queue->postAfter(0ms, running(2));
    queue->post(running(3));
    EXPECT_TRUE(ran.empty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return ran.size() == 5; }));
    EXPECT_THAT(ran, ElementsAre(1, 2, 3, 4, 5));
    queue->post(running(6));
    queue->postAfter(1ms, running(7));
    queue.reset();
    bool isLater = false;
    QTimer::singleShot(20, [&] { isLater = true; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return isLater; }));
    EXPECT_EQ(ran.size(), 5U);
}

} // namespace
} // namespace tovrel
