#pragma once

#include <vector>

#include "platform/WindowList.h"

namespace tovrel {

/// Windows that a test opens and closes. Waiting returns at once, because nothing can happen meanwhile.
class MemoryWindowList : public WindowList {
  public:
    [[nodiscard]] bool isAvailable() const override { return true; }
    [[nodiscard]] std::optional<ApplicationWindow>
    activeWindow(std::chrono::steady_clock::time_point deadline) override;
    [[nodiscard]] std::vector<ApplicationWindow> windows() override { return windows_; }
    [[nodiscard]] std::vector<ApplicationWindow> windowsOf(std::int32_t processIdentifier) override;
    /// Only records the request: a desktop need not follow it.
    bool activate(const WindowIdentifier& window) override;
    bool waitUntilActive(std::int32_t processIdentifier,
                         std::chrono::steady_clock::time_point deadline) override;
    [[nodiscard]] Subscription onActivation(std::function<void(const ApplicationWindow&)> observer) override {
        return activations_.subscribe(std::move(observer));
    }

    /// Opens a window above the others, not active. Its identifier must be unique.
    void open(ApplicationWindow window);
    /// Closes the window; if it was the active one, none is active afterwards.
    void close(const WindowIdentifier& window);
    /// Makes the window active without moving it; absent makes none active.
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
