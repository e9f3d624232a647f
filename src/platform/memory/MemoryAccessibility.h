#pragma once

#include <map>

#include "platform/Accessibility.h"

namespace tovrel {

/// Applications whose root elements are held in memory, by process identifier.
class MemoryAccessibility : public Accessibility {
  public:
    void setTrusted(bool isTrusted) { isTrusted_ = isTrusted; }

    void setApplicationElement(std::int32_t processIdentifier, std::shared_ptr<AccessibilityElement> root) {
        roots_.insert_or_assign(processIdentifier, std::move(root));
    }

    [[nodiscard]] bool isTrusted() override { return isTrusted_; }

    [[nodiscard]] std::shared_ptr<AccessibilityElement>
    applicationElement(std::int32_t processIdentifier) override {
        const auto found = roots_.find(processIdentifier);
        return found == roots_.end() ? nullptr : found->second;
    }

  private:
    bool isTrusted_ = true;
    std::map<std::int32_t, std::shared_ptr<AccessibilityElement>> roots_;
};

} // namespace tovrel
