#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "platform/ApplicationWindow.h"
#include "support/Observable.h"

namespace tovrel {

/// The windows of applications on a display. Each call asks the display again. Without a display there are
/// none.
class WindowList {
  public:
    virtual ~WindowList() = default;

    /// Whether there is a display to ask.
    [[nodiscard]] virtual bool isAvailable() const = 0;

    /// The active window. If the display names none because it is moving the focus, waits until the deadline.
    [[nodiscard]] virtual std::optional<ApplicationWindow>
    activeWindow(std::chrono::steady_clock::time_point deadline) = 0;

    /// All windows, the topmost first.
    [[nodiscard]] virtual std::vector<ApplicationWindow> windows() = 0;

    /// The windows of a process: the active window first if it is one of them, then the others, the topmost
    /// first.
    [[nodiscard]] virtual std::vector<ApplicationWindow> windowsOf(std::int32_t processIdentifier) = 0;

    /// Asks the display to bring the window to the front, without waiting for it to happen. False when it
    /// could not be asked.
    virtual bool activate(const WindowIdentifier& window) = 0;

    /// Waits until a window of this process is active. Returns whether one is.
    virtual bool waitUntilActive(std::int32_t processIdentifier,
                                 std::chrono::steady_clock::time_point deadline) = 0;

    /// The observer is called on the main queue each time another window becomes the active one. It is not
    /// called when no window is active for a moment, nor when the same window is active again after that.
    [[nodiscard]] virtual Subscription
    onActivation(std::function<void(const ApplicationWindow&)> observer) = 0;
};

} // namespace tovrel
