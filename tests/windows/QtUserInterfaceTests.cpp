#include "windows/QtUserInterface.h"

#include <QAction>
#include <QGuiApplication>
#include <QQuickView>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "qt/QtText.h"
#include "windows/QtStatusItem.h"
#include "windows/QtWindowSystem.h"
#include "windows/ScreenCoordinates.h"

namespace tovrel {
namespace {

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
        EXPECT_EQ(view.transientParent(), &owner);
        EXPECT_EQ(view.modality(), Qt::ApplicationModal);
        EXPECT_LE((view.frameGeometry().center() - owner.frameGeometry().center()).manhattanLength(), 2);
        view.close();
    };
    EXPECT_EQ(answerAfter(whileAsking), AlertAnswer::none);
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

TEST_F(QtUserInterfaceTest, TheStatusMenuHasIconsAndItsKeysWorkWhileItIsOpen) {
    int opened = 0;
    const auto item =
        userInterface_.makeStatusItem({.imageName = "MenuBarIcon",
                                       .toolTip = "Tovrel",
                                       .menu = {{"Settings…", Text(","), "gearshape", [&] { ++opened; }}}});
    QMenu& menu = static_cast<QtStatusItem&>(*item).menu();
    EXPECT_FALSE(menu.actions().first()->icon().isNull());
    menu.popup({});
    QTest::keyClick(&menu, Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(opened, 1);
}

} // namespace
} // namespace tovrel
