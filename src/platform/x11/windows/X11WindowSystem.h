#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include <xcb/xcb.h>

#include "platform/WindowSystem.h"

namespace tovrel {

/// The window system of an X display, over the toolkit's own connection: the server does what is asked over
/// one connection in its order, and a window must be mapped before it can have the focus.
class X11WindowSystem final : public WindowSystem {
  public:
    /// `connection` is the toolkit's and outlives the object and what it hands out. `userTime` is the
    /// server's time of the user's latest key press as far as this program knows, such as that of the hot
    /// key; 0 when it knows of none.
    X11WindowSystem(xcb_connection_t* connection, std::function<std::uint32_t()> userTime);

    /// Whether a compositing manager runs (EWMH 1.5).
    [[nodiscard]] bool isComposited() const override;
    /// Also when a window within it has the focus.
    [[nodiscard]] bool hasInputFocus(OwnWindow window) const override;
    /// Does so itself without a window manager: toolkits go on asking one that was killed.
    void giveFocus(OwnWindow window) override;
    void activate(OwnWindow window) override;
    /// Where the window manager keeps the focus to itself there is no application to give it back to.
    [[nodiscard]] std::function<void()> rememberFocus() const override;
    /// Whether a window manager runs; of one that was killed, what it has said stays on the root window.
    [[nodiscard]] bool isManaged() const override;
    [[nodiscard]] bool isFirstButtonDown() const override;
    void endMove(OwnWindow window) override;
    [[nodiscard]] std::optional<Rect> activeWindowFrame() const override;
    /// A tray (System Tray Protocol Specification of freedesktop.org).
    [[nodiscard]] bool hasStatusBar() const override;
    /// A tray that starts announces itself by a message to the root window.
    [[nodiscard]] bool mayAnnounceStatusBar(std::string_view type, const void* event) const override;

  private:
    [[nodiscard]] xcb_window_t inputFocus() const;
    /// Whether the window is the ancestor or lies in it.
    [[nodiscard]] bool isWithin(xcb_window_t window, xcb_window_t ancestor) const;
    /// What the window manager says is active, none while nothing is; absent where there is no manager.
    [[nodiscard]] std::optional<xcb_window_t> activeWindow() const;
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
    std::function<std::uint32_t()> userTime_;
    xcb_window_t root_;
    Atoms atoms_;
};

} // namespace tovrel
