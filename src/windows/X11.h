#pragma once

#include <QRect>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include <xcb/xcb.h>

namespace tovrel {

/// Questions to the X server, and requests, over Qt's own connection. A copy is as good as the original.
class X11 {
  public:
    /// Absent when the application object is not one of an X display.
    static std::optional<X11> ofQt();

    [[nodiscard]] bool isComposited() const;
    /// Whether one runs; of one that was killed, what it has said stays on the root window.
    [[nodiscard]] bool hasWindowManager() const;
    [[nodiscard]] bool hasSystemTray() const;

    [[nodiscard]] xcb_window_t inputFocus() const;
    /// A window that is gone or cannot be seen does not get it.
    void setInputFocus(xcb_window_t window) const;
    [[nodiscard]] bool isFirstButtonDown() const;
    /// Whether the window is the ancestor or lies in it.
    [[nodiscard]] bool isWithin(xcb_window_t window, xcb_window_t ancestor) const;

    /// What the window manager says is active, none while nothing is; absent where there is no manager.
    [[nodiscard]] std::optional<xcb_window_t> activeWindow() const;
    /// In pixels of the screen; absent when no window is active.
    [[nodiscard]] std::optional<QRect> activeWindowFrame() const;
    /// Asks the window manager to activate the window on behalf of what the user did at `time`.
    void askToActivate(xcb_window_t window, std::uint32_t time) const;
    /// Asks the window manager to move the window no longer with the pointer, if it does.
    void askToEndMove(xcb_window_t window) const;

  private:
    explicit X11(xcb_connection_t* connection);

    void sendToWindowManager(xcb_window_t window, xcb_atom_t message,
                             const std::array<std::uint32_t, 5>& data) const;
    [[nodiscard]] xcb_atom_t atom(std::string_view name) const;
    [[nodiscard]] bool hasOwner(std::string_view selection) const;
    /// A property that names a window.
    [[nodiscard]] xcb_window_t windowProperty(xcb_window_t window, xcb_atom_t name) const;
    [[nodiscard]] xcb_window_t windowIn(xcb_get_property_cookie_t cookie) const;

    /// Asked for once: on the way to a window that is shown each question to the server counts.
    struct Atoms {
        xcb_atom_t supportingCheck = XCB_ATOM_NONE;
        xcb_atom_t activeWindow = XCB_ATOM_NONE;
        xcb_atom_t moveResize = XCB_ATOM_NONE;
    };

    xcb_connection_t* connection_;
    xcb_window_t root_;
    Atoms atoms_;
};

} // namespace tovrel
