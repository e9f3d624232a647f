#pragma once

#include <optional>
#include <vector>

#include "platform/UserInterface.h"

namespace tovrel {

/// A user interface without windows: its alerts are answered as told.
class MemoryUserInterface : public UserInterface {
  public:
    void activate() override { ++activations_; }
    [[nodiscard]] Subscription onResignActive(std::function<void()> observer) override {
        return resignActive_.subscribe(std::move(observer));
    }
    [[nodiscard]] std::optional<Rect> mainScreenVisibleFrame() override { return visibleFrame_; }
    [[nodiscard]] AlertAnswer runAlert(const Alert& alert) override {
        alerts_.push_back(alert);
        return answer_;
    }
    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem(StatusItemDescription description) override {
        statusItem_ = std::move(description);
        return std::make_unique<StatusItem>();
    }
    [[nodiscard]] Subscription onMenuTracking(std::function<void(bool)> observer) override {
        return menuTracking_.subscribe(std::move(observer));
    }
    void beep() override { ++beeps_; }
    void terminate() override { isTerminated_ = true; }

    /// How alerts are answered from now on.
    void setAnswer(AlertAnswer answer) { answer_ = answer; }
    void setVisibleFrame(std::optional<Rect> frame) { visibleFrame_ = frame; }
    void resignActive() { resignActive_.notify(); }
    void setMenuOpen(bool isOpen) { menuTracking_.notify(isOpen); }

    [[nodiscard]] int activations() const { return activations_; }
    [[nodiscard]] int beeps() const { return beeps_; }
    [[nodiscard]] const std::vector<Alert>& alerts() const { return alerts_; }
    /// The item made last.
    [[nodiscard]] const StatusItemDescription& statusItem() const { return statusItem_; }
    [[nodiscard]] bool isTerminated() const { return isTerminated_; }

  private:
    int activations_ = 0;
    int beeps_ = 0;
    AlertAnswer answer_ = AlertAnswer::firstButton;
    bool isTerminated_ = false;
    std::optional<Rect> visibleFrame_;
    std::vector<Alert> alerts_;
    StatusItemDescription statusItem_;
    ObserverList<> resignActive_;
    ObserverList<bool> menuTracking_;
};

} // namespace tovrel
