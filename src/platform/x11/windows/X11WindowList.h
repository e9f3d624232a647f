#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/WindowList.h"
#include "platform/posix/EventSource.h"
#include "platform/x11/server/X11Connection.h"
#include "platform/x11/windows/X11ActivationWatch.h"

namespace tovrel {

/// The application windows of an X display that the window manager lists (EWMH 1.5). A window describes
/// itself in _NET_WM_PID (if WM_CLIENT_MACHINE is this machine), _NET_WM_NAME or else WM_NAME, WM_CLASS,
/// _GTK_APPLICATION_ID or else _KDE_NET_WM_DESKTOP_FILE, _GTK_MENUBAR_OBJECT_PATH and its related properties,
/// and _NET_WM_STATE. Registrars of application menus know a window by its X identifier.
class X11WindowList : public WindowList {
  public:
    /// Connects to `display`, or to $DISPLAY when null.
    explicit X11WindowList(const char* display = nullptr);

    [[nodiscard]] bool isAvailable() const override { return connection_.isOpen(); }

    /// The active window; without a window manager, the window with the input focus.
    [[nodiscard]] std::optional<ApplicationWindow>
    activeWindow(std::chrono::steady_clock::time_point deadline) override;

    [[nodiscard]] std::vector<ApplicationWindow> windows() override;
    [[nodiscard]] std::vector<ApplicationWindow> windowsOf(std::int32_t processIdentifier) override;

    bool activate(const WindowIdentifier& window) override;
    bool waitUntilActive(std::int32_t processIdentifier,
                         std::chrono::steady_clock::time_point deadline) override;

    /// `activationEvents` calls the observers, so the main loop must watch it.
    [[nodiscard]] Subscription onActivation(std::function<void(const ApplicationWindow&)> observer) override;

    /// The event source of activations, on a connection of its own; made at the first call.
    [[nodiscard]] EventSource& activationEvents();

    /// The accessibility bus's address that the display publishes.
    [[nodiscard]] std::optional<std::string> accessibilityBusAddress();

  private:
    [[nodiscard]] xcb_window_t activeWindowIdentifier();
    [[nodiscard]] xcb_window_t focusedWindow();
    [[nodiscard]] std::vector<xcb_window_t> topmostFirst();
    [[nodiscard]] std::vector<xcb_window_t> activeFirst();
    [[nodiscard]] std::optional<std::int32_t> processOf(xcb_window_t window);
    [[nodiscard]] ApplicationWindow describe(xcb_window_t window);

    std::optional<std::string> display_;
    X11Connection connection_;
    ObserverList<const ApplicationWindow&> activations_;
    std::unique_ptr<X11ActivationWatch> activationWatch_;
};

} // namespace tovrel
