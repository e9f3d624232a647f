#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/WindowList.h"
#include "platform/posix/EventSource.h"
#include "platform/x11/server/X11Connection.h"
#include "platform/x11/windows/X11ActivationWatch.h"

namespace tovrel {

/// The application windows of an X display, as the window manager lists them (EWMH 1.5). What a window says
/// of itself is in _NET_WM_PID (on this machine, as WM_CLIENT_MACHINE tells), _NET_WM_NAME or else WM_NAME,
/// WM_CLASS, _GTK_APPLICATION_ID or else _KDE_NET_WM_DESKTOP_FILE, _GTK_MENUBAR_OBJECT_PATH with what belongs
/// to it, and _NET_WM_STATE. Registrars of application menus know a window by its X identifier.
class X11WindowList : public WindowList {
  public:
    /// Connects to `display`, or to $DISPLAY when null.
    explicit X11WindowList(const char* display = nullptr);

    [[nodiscard]] bool isAvailable() const override { return connection_.isOpen(); }

    /// Without a window manager it is the window with the input focus.
    [[nodiscard]] std::optional<ApplicationWindow>
    activeWindow(std::chrono::steady_clock::time_point deadline) override;

    [[nodiscard]] std::vector<ApplicationWindow> windows() override;
    [[nodiscard]] std::vector<ApplicationWindow> windowsOf(std::int32_t processIdentifier) override;

    bool activate(const WindowIdentifier& window) override;
    bool waitUntilActive(std::int32_t processIdentifier,
                         std::chrono::steady_clock::time_point deadline) override;

    /// Observers are called from `activationEvents`, so the main loop must watch that.
    [[nodiscard]] Subscription onActivation(std::function<void(const ApplicationWindow&)> observer) override;

    /// Where activations come from, on a connection of its own; made when first asked for.
    [[nodiscard]] EventSource& activationEvents();

    /// The accessibility bus's address as the display carries it.
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
