#include "app/resident/AccessibilityOffer.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tovrel {
namespace {

/// The most applications that are named; the rest are only counted.
constexpr std::size_t longestList = 5;

/// The sentence "These must be restarted …" after a space; empty when nothing must be restarted.
Text toBeRestarted(const std::vector<Text>& names, const LocalizedString& localized) {
    if (names.empty()) {
        return {};
    }
    const auto shown = std::min(names.size(), longestList);
    Text list =
        joined(std::vector<Text>(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(shown)), ", ");
    if (shown < names.size()) {
        list = Text(list.utf8() + filled(localized("AccessibilityOffer", " and %@ more"),
                                         std::to_string(names.size() - shown))
                                      .utf8());
    }
    return filled(localized("AccessibilityOffer", " These must be restarted to take notice: %@."), list);
}

} // namespace

void AccessibilityOffer::show() {
    if (accessibility_.isEnabled()) {
        offerToTurnOff();
    } else {
        offerToTurnOn();
    }
}

void AccessibilityOffer::offerToTurnOn() {
    const LocalizedString& localized = localized_;
    const AlertAnswer answer = userInterface_->runAlert(
        {.messageText = localized("AccessibilityOffer", "Turn on accessibility?"),
         .informativeText = Text(
             localized("AccessibilityOffer",
                       "Tovrel reads other applications' menus over the accessibility bus. Once it is on, "
                       "applications publish what they show to every program of yours, as they do for a "
                       "screen reader. You can turn it off again in the same place.")
                 .utf8() +
             toBeRestarted(accessibility_.applicationsToRestart(), localized).utf8()),
         .firstButton = localized("AccessibilityOffer", "Turn On"),
         .secondButton = localized("AccessibilityOffer", "Cancel")});
    if (answer == AlertAnswer::firstButton && !accessibility_.setEnabled(true)) {
        static_cast<void>(userInterface_->runAlert(
            {.messageText = localized("AccessibilityOffer", "Accessibility could not be turned on"),
             .informativeText = localized("AccessibilityOffer",
                                          "The session has no accessibility bus, or it does not answer. The "
                                          "package at-spi2-core provides it."),
             .firstButton = localized("KeyboardShortcuts", "ok"),
             .secondButton = {}}));
    }
}

void AccessibilityOffer::offerToTurnOff() {
    const LocalizedString& localized = localized_;
    const AlertAnswer answer = userInterface_->runAlert(
        {.messageText = localized("AccessibilityOffer", "Turn off accessibility?"),
         .informativeText =
             Text(localized("AccessibilityOffer",
                            "It is on: Tovrel can read the menus of applications that were started since.")
                      .utf8() +
                  toBeRestarted(accessibility_.applicationsToRestart(), localized).utf8() +
                  localized("AccessibilityOffer", " Without it, Tovrel cannot read any menus.").utf8()),
         .firstButton = localized("AccessibilityOffer", "Turn Off"),
         .secondButton = localized("AccessibilityOffer", "Keep On")});
    if (answer == AlertAnswer::firstButton) {
        accessibility_.setEnabled(false);
    }
}

} // namespace tovrel
