#include "platform/x11/windows/X11WindowSystem.h"

#include <gtest/gtest.h>

#include "platform/x11/X11WindowStage.h"

namespace tovrel {
namespace {

/// The window manager shares the connection, which makes no difference.
class X11WindowSystemTest : public testing::Test {
  protected:
    X11WindowStage stage_;
    std::uint32_t userTime_ = 4711;
    X11WindowSystem system_{stage_.connection(), [this] { return userTime_; }};
};

TEST_F(X11WindowSystemTest, TheFocusIsTheWindowManagersToGiveWhereThereIsOne) {
    const xcb_window_t front = stage_.open(11, "Front");
    const xcb_window_t within = stage_.make(11, "Within", front);
    const xcb_window_t own = stage_.make(12, "Own");
    for (const xcb_window_t window : {front, within, own}) {
        stage_.map(window);
    }
    stage_.focus(within);
    EXPECT_TRUE(system_.hasInputFocus(front));
    EXPECT_FALSE(system_.hasInputFocus(own));
    EXPECT_FALSE(system_.hasInputFocus(0));

    stage_.setActive(front);
    const auto restore = system_.rememberFocus();
    stage_.setActive(own);
    const auto restoreNothing = system_.rememberFocus();
    EXPECT_TRUE(system_.isManaged());
    system_.giveFocus(own);
    EXPECT_EQ(stage_.focused(), within);
    system_.activate(own);
    system_.endMove(own);
    const auto requests = stage_.requests("_NET_ACTIVE_WINDOW");
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests.front().window, own);
    EXPECT_EQ(requests.front().data[1], userTime_);

    stage_.killManager();
    EXPECT_FALSE(system_.isManaged());
    system_.giveFocus(own);
    EXPECT_TRUE(system_.hasInputFocus(own));
    restoreNothing();
    EXPECT_TRUE(system_.hasInputFocus(own));
    restore();
    EXPECT_EQ(stage_.focused(), within);
    system_.activate(own);
    EXPECT_TRUE(system_.hasInputFocus(own));
    system_.giveFocus(0x7FFFFFF); // A window that is gone: nothing happens, and no error is reported.
    EXPECT_TRUE(system_.hasInputFocus(own));
}

TEST_F(X11WindowSystemTest, TheActiveWindowIsMeasuredOnTheScreen) {
    EXPECT_EQ(system_.activeWindowFrame(), std::nullopt);
    const xcb_window_t outer = stage_.open(11, "Outer");
    stage_.setActive(stage_.make(11, "Inner", outer));
    EXPECT_EQ(system_.activeWindowFrame(), (Rect{{6, 8}, {10, 20}}));
    stage_.setActive(0x7FFFFFF);
    EXPECT_EQ(system_.activeWindowFrame(), std::nullopt);
}

TEST_F(X11WindowSystemTest, CompositorsAndTraysAreKnownByTheirSelections) {
    const auto own = [this](const char* selection) {
        xcb_set_selection_owner(stage_.connection(), stage_.manager(), stage_.atom(selection),
                                XCB_CURRENT_TIME);
    };
    EXPECT_FALSE(system_.isComposited());
    EXPECT_FALSE(system_.hasStatusBar());
    own("_NET_WM_CM_S0");
    EXPECT_TRUE(system_.isComposited());
    EXPECT_FALSE(system_.hasStatusBar());
    own("_NET_SYSTEM_TRAY_S0");
    EXPECT_TRUE(system_.hasStatusBar());
    xcb_generic_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE | 0x80U;
    EXPECT_TRUE(system_.mayAnnounceStatusBar("xcb_generic_event_t", &event));
    EXPECT_FALSE(system_.mayAnnounceStatusBar("another", &event));
    event.response_type = XCB_MAP_NOTIFY;
    EXPECT_FALSE(system_.mayAnnounceStatusBar("xcb_generic_event_t", &event));
}

} // namespace
} // namespace tovrel
