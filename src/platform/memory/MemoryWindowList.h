#pragma once

#include <vector>

#include "platform/WindowList.h"

namespace tovrel {

/// Windows that are there when a test says so. Nothing happens while one waits: a window that is not active
/// at once is not waited for.
class MemoryWindowList : public WindowList {
  public:
    [[nodiscard]] bool isAvailable() const override { return true; }
    [[nodiscard]] std::optional<ApplicationWindow>
    activeWindow(std::chrono::steady_clock::time_point deadline) override;
    [[nodiscard]] std::vector<ApplicationWindow> windows() override { return windows_; }
    [[nodiscard]] std::vector<ApplicationWindow> windowsOf(std::int32_t processIdentifier) override;
    /// Only notes it: whether to obey is the desktop's to decide.
    bool activate(const WindowIdentifier& window) override;
    bool waitUntilActive(std::int32_t processIdentifier,
                         std::chrono::steady_clock::time_point deadline) override;
    [[nodiscard]] Subscription onActivation(std::function<void(const ApplicationWindow&)> observer) override {
        return activations_.subscribe(std::move(observer));
    }

    /// Above the others, and not active. Its identifier is no other's.
    void open(ApplicationWindow window);
    /// The active one leaves none active.
    void close(const WindowIdentifier& window);
    /// The window becomes the active one, where it is; absent, none is.
    void setActive(const std::optional<WindowIdentifier>& window);

    /// The windows that were asked to come to the front.
    [[nodiscard]] const std::vector<WindowIdentifier>& askedToActivate() const { return asked_; }

  private:
    [[nodiscard]] std::vector<ApplicationWindow>::const_iterator find(const WindowIdentifier& window) const;

    std::vector<ApplicationWindow> windows_; ///< The topmost first.
    std::optional<WindowIdentifier> active_;
    WindowIdentifier lastTold_;
    std::vector<WindowIdentifier> asked_;
    ObserverList<const ApplicationWindow&> activations_;
};

} // namespace tovrel
