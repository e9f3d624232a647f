#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "platform/UserInterface.h"

namespace tovrel {

/// A user interface without windows; its alerts get a preset answer.
class MemoryUserInterface : public UserInterface {
  public:
    void activate() override { ++activations_; }
    [[nodiscard]] Subscription onResignActive(std::function<void()> observer) override {
        return resignActive_.subscribe(std::move(observer));
    }
    [[nodiscard]] std::optional<Screen> mainScreen() override { return mainScreen_; }
    [[nodiscard]] AlertAnswer runAlert(const Alert& alert) override {
        if (isAlertOpen_) {
            return AlertAnswer::none;
        }
        alerts_.push_back(alert);
        isAlertOpen_ = true;
        if (duringAlert) {
            duringAlert();
        }
        isAlertOpen_ = false;
        return answer_;
    }
    [[nodiscard]] bool isAlertOpen() const override { return isAlertOpen_; }
    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem(StatusItemDescription description) override {
        auto shown = std::make_shared<StatusItemDescription>(std::move(description));
        statusItem_ = shown;
        return std::make_unique<Item>(std::move(shown));
    }
    [[nodiscard]] Subscription onMenuTracking(std::function<void(bool)> observer) override {
        return menuTracking_.subscribe(std::move(observer));
    }
    void closeMenu() override {
        if (std::exchange(isMenuOpen_, false)) {
            menuTracking_.notify(false);
        }
    }
    void beep() override { ++beeps_; }
    void terminate() override { isTerminated_ = true; }

    /// Sets the answer to alerts.
    void setAnswer(AlertAnswer answer) { answer_ = answer; }
    void setMainScreen(std::optional<Screen> screen) { mainScreen_ = std::move(screen); }
    void resignActive() { resignActive_.notify(); }
    void setMenuOpen(bool isOpen) {
        isMenuOpen_ = isOpen;
        menuTracking_.notify(isOpen);
    }
    /// Called while a question waits for its answer; may be empty.
    std::function<void()> duringAlert;

    [[nodiscard]] int activations() const { return activations_; }
    [[nodiscard]] int beeps() const { return beeps_; }
    [[nodiscard]] const std::vector<Alert>& alerts() const { return alerts_; }
    /// The item made last; null when it is gone.
    [[nodiscard]] std::shared_ptr<const StatusItemDescription> statusItem() const {
        return statusItem_.lock();
    }
    [[nodiscard]] bool isTerminated() const { return isTerminated_; }

  private:
    struct Item : StatusItem {
        explicit Item(std::shared_ptr<StatusItemDescription> described) : shown(std::move(described)) {}
        void setToolTip(const Text& toolTip) override { shown->toolTip = toolTip; }
        std::shared_ptr<StatusItemDescription> shown;
    };

    int activations_ = 0;
    bool isAlertOpen_ = false;
    bool isMenuOpen_ = false;
    int beeps_ = 0;
    AlertAnswer answer_ = AlertAnswer::firstButton;
    bool isTerminated_ = false;
    std::optional<Screen> mainScreen_;
    std::vector<Alert> alerts_;
    std::weak_ptr<StatusItemDescription> statusItem_;
    ObserverList<> resignActive_;
    ObserverList<bool> menuTracking_;
};

} // namespace tovrel
