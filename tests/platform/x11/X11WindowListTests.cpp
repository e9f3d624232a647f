#include "platform/x11/windows/X11WindowList.h"

#include <chrono>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "platform/x11/X11WindowStage.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

std::chrono::steady_clock::time_point after(std::chrono::milliseconds duration) {
    return std::chrono::steady_clock::now() + duration;
}

class X11WindowListTest : public testing::Test {
  protected:
    X11WindowStage stage_;
    X11WindowList windows_{stage_.name().c_str()};
};

TEST_F(X11WindowListTest, AWindowIsWhatItsPropertiesSay) {
    const xcb_window_t window = stage_.open(11, "Title ✓");
    stage_.setText(window, "WM_CLASS", std::string("instance\0Class\0", 15));
    stage_.setText(window, "_GTK_APPLICATION_ID", "org.example.App");
    const xcb_window_t remote = stage_.open(12, "Elsewhere");
    stage_.setText(remote, "WM_CLIENT_MACHINE", "another-machine");
    stage_.setWindows(stage_.root(), "_NET_CLIENT_LIST_STACKING", {window, remote, 0x7FFFFFF});
    stage_.setText(stage_.root(), "AT_SPI_BUS", "unix:path=/somewhere");

    const auto all = windows_.windows();
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(all[0].processIdentifier, std::nullopt) << "a window that is gone";
    EXPECT_EQ(all[1].processIdentifier, std::nullopt) << "a process of another machine";
    EXPECT_EQ(all[2].processIdentifier, 11);
    EXPECT_EQ(all[2].title, Text("Title ✓"));
    EXPECT_EQ(all[2].instanceName, "instance");
    EXPECT_EQ(all[2].className, "Class");
    EXPECT_EQ(all[2].applicationIdentifier, "org.example.App");
    EXPECT_EQ(all[2].registrarIdentifier, window);
    EXPECT_EQ(windows_.accessibilityBusAddress(), "unix:path=/somewhere");
}

TEST_F(X11WindowListTest, WaitsWhileNoWindowIsActive) {
    const xcb_window_t window = stage_.open(11, "Next");
    stage_.setActive(0);
    std::thread manager([&] { stage_.setActive(window); });
    const auto active = windows_.activeWindow(after(10s));
    manager.join();
    ASSERT_TRUE(active);
    EXPECT_EQ(active->title, Text("Next"));
}

TEST_F(X11WindowListTest, WhatAKilledWindowManagerHasSaidCountsNoMore) {
    const xcb_window_t active = stage_.make(11, "Active");
    const xcb_window_t focused = stage_.make(12, "Focused");
    stage_.setText(focused, "WM_CLASS", std::string("focused\0Focused\0", 16));
    stage_.map(focused);
    stage_.focus(focused);
    stage_.setActive(active);
    EXPECT_EQ(windows_.activeWindow(after(0ms))->title, Text("Active"));
    stage_.killManager();
    stage_.setActive(active);
    EXPECT_EQ(windows_.activeWindow(after(0ms))->title, Text("Focused"));
    // Another window may have got the number since.
    stage_.setWindows(stage_.root(), "_NET_SUPPORTING_WM_CHECK", {active});
    EXPECT_EQ(windows_.activeWindow(after(0ms))->title, Text("Focused"));
    stage_.announceManager();
    EXPECT_EQ(windows_.activeWindow(after(0ms))->title, Text("Active"));
}

TEST_F(X11WindowListTest, ActivatesAsAPagerDoes) {
    const xcb_window_t window = stage_.make(11, "Target");
    ASSERT_TRUE(windows_.activate(std::to_string(window)));
    const auto requests = stage_.requests("_NET_ACTIVE_WINDOW");
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests.front().window, window);
    EXPECT_EQ(requests.front().data.front(), 2U) << "not as a pager";
}

TEST(X11WindowListWithoutServer, HaveNoAnswers) {
    X11WindowList windows(":60987");
    EXPECT_FALSE(windows.isAvailable());
    EXPECT_FALSE(windows.activeWindow(after(50ms)));
    EXPECT_TRUE(windows.windows().empty());
    EXPECT_TRUE(windows.windowsOf(1).empty());
    EXPECT_FALSE(windows.activate("1"));
    EXPECT_EQ(windows.accessibilityBusAddress(), std::nullopt);
}

} // namespace
} // namespace tovrel
