#pragma once

#include <string>

#include "platform/PreferencesDomain.h"

namespace tovrel {

/// Remembers that the accessibility onboarding was shown, so that it is shown once.
class FirstLaunchOnboardingStore {
  public:
    FirstLaunchOnboardingStore(PreferencesDomain& defaults, std::string accessibilityOnboardingShownKey)
        : defaults_(&defaults), accessibilityOnboardingShownKey_(std::move(accessibilityOnboardingShownKey)) {
    }

    [[nodiscard]] bool accessibilityOnboardingShown() const {
        return booleanValue(*defaults_, accessibilityOnboardingShownKey_).value_or(false);
    }

    void markAccessibilityOnboardingShown() { defaults_->set(accessibilityOnboardingShownKey_, true); }

  private:
    PreferencesDomain* defaults_;
    std::string accessibilityOnboardingShownKey_;
};

} // namespace tovrel
