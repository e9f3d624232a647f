#include "app/resident/AccessibilityOffer.h"

#include <string>
#include <vector>

namespace tovrel {
namespace {

/// So many applications are named; of the rest only the number is told.
constexpr std::size_t longestList = 5;

std::string list(const std::vector<Text>& names) {
    std::string text;
    for (std::size_t i = 0; i < names.size() && i < longestList; ++i) {
        text += (i == 0 ? "" : ", ") + names[i].utf8();
    }
    if (names.size() > longestList) {
        text += " and " + std::to_string(names.size() - longestList) + " more";
    }
    return text;
}

std::string toBeRestarted(const std::vector<Text>& names) {
    return names.empty() ? std::string() : " These must be restarted to take notice: " + list(names) + ".";
}

} // namespace

void AccessibilityOffer::show() {
    if (accessibility_->isEnabled()) {
        offerToTurnOff();
    } else {
        offerToTurnOn();
    }
}

void AccessibilityOffer::offerToTurnOn() {
    const bool isWanted = userInterface_->runAlert(
        {.messageText = "Turn on accessibility?",
         .informativeText = Text(
             "Tovrel reads other applications' menus over the accessibility bus. Once it is on, applications "
             "publish what they show to every program of yours, as they do for a screen reader. You can turn "
             "it off again in the same place." +
             toBeRestarted(accessibility_->applicationsToRestart())),
         .firstButton = "Turn On",
         .secondButton = "Cancel"});
    if (isWanted && !accessibility_->setEnabled(true)) {
        static_cast<void>(userInterface_->runAlert(
            {.messageText = "Accessibility could not be turned on",
             .informativeText = "The session has no accessibility bus, or it does not answer. The package "
                                "at-spi2-core provides it.",
             .firstButton = "OK",
             .secondButton = {}}));
    }
}

void AccessibilityOffer::offerToTurnOff() {
    const bool isUnwanted = userInterface_->runAlert(
        {.messageText = "Turn off accessibility?",
         .informativeText =
             Text("It is on: Tovrel can read the menus of applications that were started since." +
                  toBeRestarted(accessibility_->applicationsToRestart()) +
                  " Without it, Tovrel cannot read any menus."),
         .firstButton = "Turn Off",
         .secondButton = "Keep On"});
    if (isUnwanted) {
        accessibility_->setEnabled(false);
    }
}

} // namespace tovrel
