#include "app/MenuReadShortfall.h"

#include <iomanip>
#include <sstream>

namespace tovrel {
namespace {

std::string seconds(std::chrono::microseconds time) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(1) << std::chrono::duration<double>(time).count() << " s";
    return text.str();
}

MenuReadShortfall nothingToRead(const std::string& reason, bool isTrusted) {
    const char* hint = "; accessibility is off for toolkits: turn it on and start the application again";
    return {.reason = reason + (isTrusted ? "" : hint), .wasCutShort = false};
}

} // namespace

std::optional<MenuReadShortfall> menuReadShortfall(const MenuReadReport& report,
                                                   const std::string& applicationName, bool isTrusted) {
    switch (report.outcome) {
    case MenuReadOutcome::completed:
        break;
    case MenuReadOutcome::applicationSilent:
        return MenuReadShortfall{.reason =
                                     applicationName + " did not answer within " + seconds(report.elapsed)};
    case MenuReadOutcome::tooSlow:
        return MenuReadShortfall{.reason = applicationName + " had not answered everything after " +
                                           seconds(report.elapsed)};
    case MenuReadOutcome::treeTooLarge:
        return MenuReadShortfall{.reason = "the menus of " + applicationName + " are too large"};
    case MenuReadOutcome::applicationGone:
        return MenuReadShortfall{.reason = applicationName + " went away"};
    case MenuReadOutcome::noMenuBar:
        return nothingToRead(applicationName + " shows no menu bar", isTrusted);
    case MenuReadOutcome::notRegistered:
        return nothingToRead(applicationName + " is not on the accessibility bus", isTrusted);
    case MenuReadOutcome::noAccessibilityBus:
        return MenuReadShortfall{.reason = "the accessibility bus does not answer", .wasCutShort = false};
    }
    return std::nullopt;
}

} // namespace tovrel
