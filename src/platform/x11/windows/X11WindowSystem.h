#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include <xcb/xcb.h>

#include "platform/WindowSystem.h"

namespace tovrel {

/// The window system of an X display, over the toolkit's own connection: a window must be mapped before it
/// can have the focus, and the server keeps the order only of requests over one connection.
class X11WindowSystem final : public WindowSystem {
  public:
    /// `connection` is the toolkit's and must outlive the object and the functions that it returns.
    /// `userTime` returns the server's time of the user's latest key press that this program knows, such as
    /// the hot key's; 0 when it knows none.
    X11WindowSystem(xcb_connection_t* connection, std::function<std::uint32_t()> userTime);

    /// Whether a compositing manager runs (EWMH 1.5).
    [[nodiscard]] bool isComposited() const override;
    /// Also true when a window inside it has the focus.
    [[nodiscard]] bool hasInputFocus(OwnWindow window) const override;
    /// Sets the focus itself if there is no window manager, because toolkits keep asking one that was killed.
    void giveFocus(OwnWindow window) override;
    void activate(OwnWindow window) override;
    /// While the window manager itself has the focus, there is no application to give it back to.
    [[nodiscard]] std::function<void()> rememberFocus() const override;
    /// Whether a window manager runs; the properties of a killed one on the root window do not count.
    [[nodiscard]] bool isManaged() const override;
    [[nodiscard]] bool isFirstButtonDown() const override;
    void endMove(OwnWindow window) override;
    [[nodiscard]] std::optional<Rect> activeWindowFrame() const override;
    /// Whether there is a tray (System Tray Protocol Specification of freedesktop.org).
    [[nodiscard]] bool hasStatusBar() const override;
    /// A starting tray announces itself with a message to the root window.
    [[nodiscard]] bool mayAnnounceStatusBar(std::string_view type, const void* event) const override;

  private:
    [[nodiscard]] xcb_window_t inputFocus() const;
    /// Whether the window is the ancestor or inside it.
    [[nodiscard]] bool isWithin(xcb_window_t window, xcb_window_t ancestor) const;
    /// The window that the window manager calls active, 0 while none is; absent without a manager.
    [[nodiscard]] std::optional<xcb_window_t> activeWindow() const;
    void sendToWindowManager(xcb_window_t window, xcb_atom_t message,
                             const std::array<std::uint32_t, 5>& data) const;
    [[nodiscard]] xcb_atom_t atom(std::string_view name) const;
    [[nodiscard]] bool hasOwner(std::string_view selection) const;
    /// The window that a property names.
    [[nodiscard]] xcb_window_t windowProperty(xcb_window_t window, xcb_atom_t name) const;
    [[nodiscard]] xcb_window_t windowIn(xcb_get_property_cookie_t cookie) const;

    /// The atoms, requested once, because each question to the server delays the showing of a window.
    struct Atoms {
        xcb_atom_t supportingCheck = XCB_ATOM_NONE;
        xcb_atom_t activeWindow = XCB_ATOM_NONE;
        xcb_atom_t moveResize = XCB_ATOM_NONE;
    };

    xcb_connection_t* connection_;
    std::function<std::uint32_t()> userTime_;
    xcb_window_t root_;
    Atoms atoms_;
};

} // namespace tovrel
