#include "platform/x11/hotkeys/X11FocusWait.h"

#include <algorithm>
#include <cstdint>

#include "platform/x11/server/XcbOwned.h"

namespace tovrel {
namespace {

bool contains(const std::vector<xcb_window_t>& windows, xcb_window_t window) {
    return std::find(windows.begin(), windows.end(), window) != windows.end();
}

} // namespace

void X11FocusWait::begin(const KeyDestination& destination) {
    end();
    destination_ = static_cast<xcb_window_t>(destination.window);
    shouldHaveFocus_ = destination.shouldHaveFocus;
    isWaiting_ = true;
    selectEvents(true);
}

void X11FocusWait::end() {
    if (isWaiting_) {
        isWaiting_ = false;
        selectEvents(false);
    }
}

bool X11FocusWait::isReached() {
    if (destination_ == 0) {
        return true;
    }
    const xcb_window_t focused = focusedWindow();
    if (focused == XCB_NONE || focused == XCB_INPUT_FOCUS_POINTER_ROOT || focused == connection_.root()) {
        return false;
    }
    const std::vector<xcb_window_t> around = withAncestors(focused);
    if (contains(around, destination_)) {
        return shouldHaveFocus_;
    }
    if (shouldHaveFocus_) {
        return false;
    }
    const auto active = connection_.activeWindow();
    return active ? contains(around, *active) : !contains(withAncestors(destination_), focused);
}

xcb_window_t X11FocusWait::focusedWindow() {
    const XcbOwned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection_.handle(), xcb_get_input_focus(connection_.handle()), nullptr));
    return reply ? reply->focus : xcb_window_t{XCB_NONE};
}

std::vector<xcb_window_t> X11FocusWait::withAncestors(xcb_window_t window) {
    constexpr std::size_t deepest = 64; // The tree may change between the questions.
    std::vector<xcb_window_t> windows;
    while (window != XCB_NONE && window != connection_.root() && windows.size() < deepest) {
        windows.push_back(window);
        xcb_generic_error_t* error = nullptr;
        const XcbOwned<xcb_query_tree_reply_t> reply(
            xcb_query_tree_reply(connection_.handle(), xcb_query_tree(connection_.handle(), window), &error));
        const XcbOwned<xcb_generic_error_t> owned(error); // The window may be gone by now.
        window = reply ? reply->parent : xcb_window_t{XCB_NONE};
    }
    return windows;
}

void X11FocusWait::selectEvents(bool isWanted) {
    if (destination_ == 0) {
        return;
    }
    const auto select = [this, isWanted](xcb_window_t window, std::uint32_t events) {
        const std::uint32_t mask = isWanted ? events : 0;
        xcb_change_window_attributes(connection_.handle(), window, XCB_CW_EVENT_MASK, &mask);
    };
    select(destination_, XCB_EVENT_MASK_FOCUS_CHANGE);
    // The root window gets an event when the focus moves between any window and the root or nothing.
    select(connection_.root(), std::uint32_t{XCB_EVENT_MASK_FOCUS_CHANGE} | XCB_EVENT_MASK_PROPERTY_CHANGE);
}

} // namespace tovrel
