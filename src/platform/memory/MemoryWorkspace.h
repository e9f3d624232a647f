#pragma once

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "platform/Workspace.h"

namespace tovrel {

/// A desktop on which tests bring applications to the front.
class MemoryWorkspace : public Workspace {
  public:
    [[nodiscard]] std::shared_ptr<RunningApplication> frontApplication() override { return front_; }
    bool activate(const RunningApplication& application) override {
        if (application.isTerminated()) {
            return false;
        }
        activated_.push_back(application.processIdentifier());
        return true;
    }
    [[nodiscard]] Subscription
    onActivation(std::function<void(const std::shared_ptr<RunningApplication>&)> observer) override {
        return activations_.subscribe(std::move(observer));
    }
    [[nodiscard]] std::optional<InstalledApplication>
    installedApplication(const Text& bundleIdentifier) override {
        for (const InstalledApplication& application : installed_) {
            if (application.bundleIdentifier == bundleIdentifier) {
                return application;
            }
        }
        return std::nullopt;
    }
    [[nodiscard]] std::vector<InstalledApplication> installedApplications() override { return installed_; }
    void open(const Text& url) override { opened_.push_back(url); }

    void install(InstalledApplication application) { installed_.push_back(std::move(application)); }

    /// Acts as if the user had switched to the application; null leaves no application in front.
    void bringToFront(std::shared_ptr<RunningApplication> application) {
        front_ = std::move(application);
        activations_.notify(front_);
    }

    /// Does the same without calling observers, as if the event had not arrived yet.
    void bringToFrontUntold(std::shared_ptr<RunningApplication> application) {
        front_ = std::move(application);
    }

    /// The process identifiers of the applications that were asked to come to the front.
    [[nodiscard]] const std::vector<std::int32_t>& activated() const { return activated_; }
    /// The URLs that were handed over.
    [[nodiscard]] const std::vector<Text>& opened() const { return opened_; }

  private:
    std::shared_ptr<RunningApplication> front_;
    ObserverList<const std::shared_ptr<RunningApplication>&> activations_;
    std::vector<std::int32_t> activated_;
    std::vector<Text> opened_;
    std::vector<InstalledApplication> installed_;
};

} // namespace tovrel
