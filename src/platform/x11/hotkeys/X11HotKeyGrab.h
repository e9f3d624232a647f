#pragma once

#include <optional>
#include <vector>

#include "platform/x11/keyboard/X11KeyMap.h"

namespace tovrel {

/// The passive grabs that make one hot key: the key with its modifiers, under every combination of locks.
struct X11HotKeyGrab {
    xcb_keycode_t key = 0;
    X11Modifiers modifiers = 0;
    std::vector<X11Modifiers> lockCombinations;

    friend bool operator==(const X11HotKeyGrab&, const X11HotKeyGrab&) = default;

    /// Whether an event with this key and these modifiers, including locks, is the hot key's.
    [[nodiscard]] bool matches(xcb_keycode_t eventKey, X11Modifiers eventModifiers) const;

    /// Takes all grabs on the root window, or takes none and returns the server's error code, which is 10
    /// (BadAccess) when another client has one of them. When a grab fires, the server holds the keyboard and
    /// keeps every later key event until the keyboard is released.
    [[nodiscard]] std::optional<std::uint8_t> take(xcb_connection_t* connection, xcb_window_t root) const;
    /// Gives the grabs back, except an active one.
    void giveBack(xcb_connection_t* connection, xcb_window_t root) const;
};

} // namespace tovrel
