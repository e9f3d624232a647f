#pragma once

#include <utility>

#include "platform/RunningApplication.h"

namespace tovrel {

/// An application with the properties given at construction.
class MemoryApplication : public RunningApplication {
  public:
    MemoryApplication(std::int32_t processIdentifier, std::optional<Text> bundleIdentifier,
                      std::optional<Text> localizedName)
        : processIdentifier_(processIdentifier), bundleIdentifier_(std::move(bundleIdentifier)),
          localizedName_(std::move(localizedName)) {}

    void setTerminated(bool isTerminated) { isTerminated_ = isTerminated; }

    [[nodiscard]] std::optional<Text> bundleIdentifier() const override { return bundleIdentifier_; }
    [[nodiscard]] std::optional<Text> localizedName() const override { return localizedName_; }
    [[nodiscard]] std::optional<ApplicationIcon> icon() const override { return std::nullopt; }
    [[nodiscard]] std::int32_t processIdentifier() const override { return processIdentifier_; }
    [[nodiscard]] bool isTerminated() const override { return isTerminated_; }

  private:
    std::int32_t processIdentifier_;
    std::optional<Text> bundleIdentifier_;
    std::optional<Text> localizedName_;
    bool isTerminated_ = false;
};

} // namespace tovrel
