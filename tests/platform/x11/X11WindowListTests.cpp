#include "platform/x11/windows/X11WindowList.h"

#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <unistd.h>

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include "platform/linux/ServerProcess.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

std::chrono::steady_clock::time_point after(std::chrono::milliseconds duration) {
    return std::chrono::steady_clock::now() + duration;
}

/// Acts as the applications and as the window manager.
class X11WindowListTest : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_FALSE(server_.announced().empty()) << "Xvfb is needed";
        connection_.reset(xcb_connect(display_.c_str(), nullptr));
        ASSERT_EQ(xcb_connection_has_error(connection_.get()), 0);
        root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
        announceManager();
    }

    /// As window managers do; the window goes when one is killed, and the rest stays.
    void announceManager() {
        manager_ = makeWindow(1, "Manager");
        setNumbers(manager_, "_NET_SUPPORTING_WM_CHECK", {manager_});
        setNumbers(root_, "_NET_SUPPORTING_WM_CHECK", {manager_});
    }

    xcb_atom_t atom(const std::string& name) {
        xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(
            connection_.get(),
            xcb_intern_atom(connection_.get(), 0, static_cast<std::uint16_t>(name.size()), name.c_str()),
            nullptr);
        const xcb_atom_t found = reply->atom;
        std::free(reply); // NOLINT: xcb allocates its replies so
        return found;
    }
    void setText(xcb_window_t window, const std::string& name, const std::string& value) {
        xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window, atom(name), XCB_ATOM_STRING, 8,
                            static_cast<std::uint32_t>(value.size()), value.data());
    }
    void setNumbers(xcb_window_t window, const std::string& name, const std::vector<std::uint32_t>& values) {
        xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window, atom(name), XCB_ATOM_CARDINAL,
                            32, static_cast<std::uint32_t>(values.size()), values.data());
        // Waits for the answer to a question, behind which the change is done.
        atom("WM_CLASS");
    }
    xcb_window_t makeWindow(std::uint32_t process, const std::string& title) {
        const xcb_window_t window = xcb_generate_id(connection_.get());
        xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, window, root_, 0, 0, 10, 10, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        setText(window, "_NET_WM_NAME", title);
        setNumbers(window, "_NET_WM_PID", {process});
        return window;
    }

    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    ServerProcess server_{{"Xvfb", "-displayfd", "{fd}", "-screen", "0", "64x64x24", "-nolisten", "tcp"}};
    std::string display_ = ":" + server_.announced();
    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    xcb_window_t root_ = 0;
    xcb_window_t manager_ = 0;
};

TEST_F(X11WindowListTest, DescribesWindowsFromTheTop) {
    const xcb_window_t lower = makeWindow(11, "Lower");
    const xcb_window_t upper = makeWindow(11, "Upper ✓");
    const xcb_window_t remote = makeWindow(12, "Elsewhere");
    setText(upper, "WM_CLASS", std::string("instance\0Class\0", 15));
    setText(upper, "_GTK_APPLICATION_ID", "org.example.App");
    setText(remote, "WM_CLIENT_MACHINE", "another-machine");
    setNumbers(root_, "_NET_CLIENT_LIST_STACKING", {lower, upper, remote, 0x7FFFFFF});
    setNumbers(root_, "_NET_ACTIVE_WINDOW", {lower});
    setText(root_, "AT_SPI_BUS", "unix:path=/somewhere");

    X11WindowList windows(display_.c_str());
    const auto all = windows.windows();
    ASSERT_EQ(all.size(), 4U);
    EXPECT_EQ(all[0].processIdentifier, std::nullopt) << "a window that is gone";
    EXPECT_EQ(all[1].processIdentifier, std::nullopt) << "a process of another machine";
    EXPECT_EQ(all[2].processIdentifier, 11);
    EXPECT_EQ(all[2].title, Text("Upper ✓"));
    EXPECT_EQ(all[2].instanceName, "instance");
    EXPECT_EQ(all[2].className, "Class");
    EXPECT_EQ(all[2].applicationIdentifier, "org.example.App");
    EXPECT_EQ(windows.windowsOf(11).front().title, Text("Lower"));
    setNumbers(root_, "_NET_ACTIVE_WINDOW", {remote});
    EXPECT_EQ(windows.windowsOf(11).front().title, Text("Upper ✓"));
    EXPECT_TRUE(windows.windowsOf(13).empty());
    EXPECT_EQ(windows.activeWindow(after(0ms))->title, Text("Elsewhere"));
    EXPECT_EQ(windows.accessibilityBusAddress(), "unix:path=/somewhere");
}

TEST_F(X11WindowListTest, WaitsWhileNoWindowIsActive) {
    const xcb_window_t window = makeWindow(11, "Next");
    setNumbers(root_, "_NET_ACTIVE_WINDOW", {0});
    X11WindowList windows(display_.c_str());
    EXPECT_FALSE(windows.activeWindow(after(20ms)));
    EXPECT_FALSE(windows.waitUntilActive(11, after(20ms)));

    std::thread manager([&] { setNumbers(root_, "_NET_ACTIVE_WINDOW", {window}); });
    const auto active = windows.activeWindow(after(10s));
    manager.join();
    ASSERT_TRUE(active);
    EXPECT_EQ(active->title, Text("Next"));
    EXPECT_TRUE(windows.waitUntilActive(11, after(0ms)));
}

TEST_F(X11WindowListTest, WhatAKilledWindowManagerHasSaidCountsNoMore) {
    const xcb_window_t active = makeWindow(11, "Active");
    const xcb_window_t focused = makeWindow(12, "Focused");
    setText(focused, "WM_CLASS", std::string("focused\0Focused\0", 16));
    xcb_map_window(connection_.get(), focused);
    xcb_set_input_focus(connection_.get(), XCB_INPUT_FOCUS_POINTER_ROOT, focused, XCB_CURRENT_TIME);
    setNumbers(root_, "_NET_ACTIVE_WINDOW", {active});
    X11WindowList windows(display_.c_str());
    EXPECT_EQ(windows.activeWindow(after(0ms))->title, Text("Active"));
    xcb_destroy_window(connection_.get(), manager_);
    setNumbers(root_, "_NET_ACTIVE_WINDOW", {active});
    EXPECT_EQ(windows.activeWindow(after(0ms))->title, Text("Focused"));
    // Somebody else may have got the number of the window since.
    setNumbers(root_, "_NET_SUPPORTING_WM_CHECK", {active});
    EXPECT_EQ(windows.activeWindow(after(0ms))->title, Text("Focused"));
    announceManager();
    EXPECT_EQ(windows.activeWindow(after(0ms))->title, Text("Active"));
}

TEST_F(X11WindowListTest, AsksTheWindowManagerToActivate) {
    const xcb_window_t window = makeWindow(11, "Target");
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT;
    xcb_change_window_attributes(connection_.get(), root_, XCB_CW_EVENT_MASK, &mask);
    const xcb_atom_t message = atom("_NET_ACTIVE_WINDOW");
    X11WindowList windows(display_.c_str());
    ASSERT_TRUE(windows.activate(std::to_string(window)));
    atom("WM_CLASS"); // Whatever was sent before has arrived with the answer.
    xcb_generic_event_t* event = xcb_poll_for_event(connection_.get());
    ASSERT_NE(event, nullptr);
    ASSERT_EQ(event->response_type & 0x7F, XCB_CLIENT_MESSAGE);
    const auto* received = reinterpret_cast<const xcb_client_message_event_t*>(event);
    EXPECT_EQ(received->window, window);
    EXPECT_EQ(received->type, message);
    EXPECT_EQ(received->data.data32[0], 2U) << "not as a pager";
    std::free(event); // NOLINT: xcb allocates its events so
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
