#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/x11/server/X11Connection.h"
#include "support/Text.h"

namespace tovrel {

/// The D-Bus objects in which GTK publishes a window's menu bar and the actions it refers to.
struct GtkMenuAddress {
    std::string busName;         ///< On the session bus (_GTK_UNIQUE_BUS_NAME).
    std::string menuBarPath;     ///< org.gtk.Menus (_GTK_MENUBAR_OBJECT_PATH).
    std::string applicationPath; ///< org.gtk.Actions of "app." (_GTK_APPLICATION_OBJECT_PATH); may be empty.
    std::string windowPath;      ///< org.gtk.Actions of "win." (_GTK_WINDOW_OBJECT_PATH); may be empty.
};

/// What an application window says of itself (EWMH 1.5, ICCCM 2.0, and what GTK and KDE add).
struct X11Window {
    xcb_window_t identifier = 0;
    std::optional<std::int32_t> processIdentifier; ///< Of a process of this machine (_NET_WM_PID).
    Text title;                                    ///< _NET_WM_NAME, else WM_NAME.
    std::string instanceName;                      ///< First part of WM_CLASS.
    std::string className;                         ///< Second part of WM_CLASS.
    std::string applicationIdentifier;             ///< _GTK_APPLICATION_ID, else _KDE_NET_WM_DESKTOP_FILE.
    std::optional<GtkMenuAddress> gtkMenus;        ///< Absent when it publishes no menu bar.
    /// It keeps the user from the other windows of its application (_NET_WM_STATE_MODAL).
    bool isModal = false;
};

/// A rectangle of an X screen, in physical pixels from the top left corner of the root window.
struct X11Rectangle {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    friend bool operator==(const X11Rectangle&, const X11Rectangle&) = default;
};

/// The application windows of an X display, read anew at each question. Without a display there are none.
class X11Windows {
  public:
    explicit X11Windows(const char* display = nullptr);

    [[nodiscard]] bool isAvailable() const { return connection_.isOpen(); }
    /// As given at construction, for further connections to the same server.
    [[nodiscard]] const char* display() const { return display_ ? display_->c_str() : nullptr; }

    /// The active window. While the focus changes the desktop names none for a moment, which is waited out
    /// until the deadline. Without a window manager it is the window with the input focus.
    [[nodiscard]] std::optional<X11Window> activeWindow(std::chrono::steady_clock::time_point deadline);

    /// All application windows, the topmost first.
    [[nodiscard]] std::vector<X11Window> windows();
    /// The first of `windowsOf`.
    [[nodiscard]] std::optional<X11Window> frontWindow(std::int32_t processIdentifier);
    /// The windows of a process: the active one if it has it, then the others, the topmost first.
    [[nodiscard]] std::vector<X11Window> windowsOf(std::int32_t processIdentifier);

    [[nodiscard]] X11Window describe(xcb_window_t window);

    /// Where the active window is, with what the window manager draws around it (_NET_FRAME_EXTENTS); absent
    /// when no window is active.
    [[nodiscard]] std::optional<X11Rectangle> activeWindowFrame();

    /// Asks the window manager to activate the window. `userTime` is the server's time of the user's action
    /// that this follows from; some managers refuse requests that tell none. False when it could not be
    /// asked.
    bool activate(xcb_window_t window, xcb_timestamp_t userTime = XCB_CURRENT_TIME);
    /// Waits until a window of this process is active; whether one is.
    bool waitUntilActive(std::int32_t processIdentifier, std::chrono::steady_clock::time_point deadline);

    /// The accessibility bus's address as the display carries it.
    [[nodiscard]] std::optional<std::string> accessibilityBusAddress();

  private:
    [[nodiscard]] xcb_window_t activeWindowIdentifier();
    [[nodiscard]] xcb_window_t focusedWindow();
    [[nodiscard]] std::vector<xcb_window_t> topmostFirst();
    [[nodiscard]] std::vector<xcb_window_t> activeFirst();
    [[nodiscard]] std::optional<std::int32_t> processOf(xcb_window_t window);

    std::optional<std::string> display_;
    X11Connection connection_;
};

} // namespace tovrel
