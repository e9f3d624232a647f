#pragma once

#include <string_view>
#include <utility>

#include "app/desktop/Desktop.h"
#include "platform/UserInterface.h"
#include "support/LocalizedString.h"

namespace tovrel {

/// This desktop's counterpart of the system's privacy settings. Asks whether toolkits shall publish their
/// menus, says what that changes and which applications must be restarted to notice, and can undo it.
class AccessibilityOffer {
  public:
    /// The address that opens the offer, used by custom commands and the settings.
    static constexpr std::string_view address =
        "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";

    AccessibilityOffer(AccessibilitySwitch accessibility, UserInterface& userInterface,
                       LocalizedString localized)
        : accessibility_(std::move(accessibility)), userInterface_(&userInterface),
          localized_(std::move(localized)) {}

    /// Returns once the user has answered.
    void show();

  private:
    void offerToTurnOn();
    void offerToTurnOff();

    AccessibilitySwitch accessibility_;
    UserInterface* userInterface_;
    LocalizedString localized_;
};

} // namespace tovrel
