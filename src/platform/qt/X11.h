#pragma once

#include <QRect>
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
    [[nodiscard]] bool hasWindowManager() const;
    [[nodiscard]] bool hasSystemTray() const;

    [[nodiscard]] xcb_window_t inputFocus() const;
    void setInputFocus(xcb_window_t window) const;
    /// Whether the window is the ancestor or lies in it.
    [[nodiscard]] bool isWithin(xcb_window_t window, xcb_window_t ancestor) const;

    /// In pixels of the screen; absent when no window is active.
    [[nodiscard]] std::optional<QRect> activeWindowFrame() const;
    /// Asks the window manager to activate the window on behalf of what the user did at `time`.
    void askToActivate(xcb_window_t window, std::uint32_t time) const;

  private:
    explicit X11(xcb_connection_t* connection);

    [[nodiscard]] xcb_atom_t atom(std::string_view name) const;
    [[nodiscard]] bool hasOwner(std::string_view selection) const;
    /// A property of the root window that names a window.
    [[nodiscard]] xcb_window_t windowProperty(std::string_view name) const;

    xcb_connection_t* connection_;
    xcb_window_t root_;
};

} // namespace tovrel
