#include "platform/x11/hotkeys/X11HotKeyGrab.h"

#include <algorithm>

#include "platform/x11/server/XcbOwned.h"

namespace tovrel {

bool X11HotKeyGrab::matches(xcb_keycode_t eventKey, X11Modifiers eventModifiers) const {
    return eventKey == key &&
           std::any_of(lockCombinations.begin(), lockCombinations.end(),
                       [&](X11Modifiers locks) { return eventModifiers == (modifiers | locks); });
}

std::optional<std::uint8_t> X11HotKeyGrab::take(xcb_connection_t* connection, xcb_window_t root) const {
    std::vector<xcb_void_cookie_t> cookies;
    for (const X11Modifiers locks : lockCombinations) {
        cookies.push_back(xcb_grab_key_checked(connection, 0, root,
                                               static_cast<X11Modifiers>(modifiers | locks), key,
                                               XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_SYNC));
    }
    std::optional<std::uint8_t> refusal;
    for (const xcb_void_cookie_t& cookie : cookies) {
        if (const XcbOwned<xcb_generic_error_t> error{xcb_request_check(connection, cookie)}; error) {
            refusal = error->error_code;
        }
    }
    if (refusal) {
        giveBack(connection, root);
    }
    return refusal;
}

void X11HotKeyGrab::giveBack(xcb_connection_t* connection, xcb_window_t root) const {
    for (const X11Modifiers locks : lockCombinations) {
        xcb_ungrab_key(connection, key, root, static_cast<X11Modifiers>(modifiers | locks));
    }
}

} // namespace tovrel
