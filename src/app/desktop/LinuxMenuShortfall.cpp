#include "app/desktop/LinuxMenuShortfall.h"

#include <chrono>
#include <sstream>
#include <string>

#include "platform/linux/menus/MenuObstacle.h"
#include "platform/linux/menus/source/MenuReadLimits.h"

namespace tovrel {
namespace {

std::string nameOf(const RunningApplication& application) {
    const std::optional<Text> name = application.localizedName();
    return name ? name->utf8() : "process " + std::to_string(application.processIdentifier());
}

std::string inSeconds(std::chrono::milliseconds time) {
    std::ostringstream text;
    text << std::chrono::duration<double>(time).count() << " s";
    return text.str();
}

/// The end of a sentence: says why the application gives no menus, and what the user can do.
std::string adviceOn(MenuObstacle obstacle, bool isRegistered, bool isEnabled) {
    switch (obstacle) {
    case MenuObstacle::switchedOff:
        return "; restart it without NO_AT_BRIDGE and GTK_A11Y in its environment, which keep it off the "
               "accessibility bus";
    case MenuObstacle::browserEngine:
        return "; it is built on a browser engine: if it has menus, they show when it is started with "
               "--force-renderer-accessibility";
    case MenuObstacle::java:
        return "; it runs on Java: install libatk-wrapper-java-jni and start it with JAVA_TOOL_OPTIONS="
               "\"-Xbootclasspath/a:/usr/share/java/java-atk-wrapper.jar "
               "-Djavax.accessibility.assistive_technologies=org.GNOME.Accessibility.AtkWrapper\"";
    case MenuObstacle::gtk2WithoutBridge:
        return "; it uses GTK 2: install libatk-adaptor and log in again, or restart it with "
               "GTK_MODULES=gail:atk-bridge";
    case MenuObstacle::sandbox:
        return "; it runs in a sandbox: allow it to talk to org.a11y.Bus and restart it";
    case MenuObstacle::none:
        break;
    }
    if (isRegistered) {
        return "";
    }
    return isEnabled
               ? "; restart it if it was started before accessibility was switched on"
               : "; accessibility is switched off for toolkits: switch it on and restart the application";
}

} // namespace

std::optional<MenuReadShortfall> linuxMenuShortfall(const MenuReadReport& report,
                                                    const RunningApplication& application, bool isEnabled) {
    const MenuReadLimits limits;
    const std::string name = nameOf(application);
    const bool isPartial = report.nodes > 1; // more than the bar itself
    switch (report.outcome) {
    case MenuReadOutcome::completed:
        return std::nullopt;
    case MenuReadOutcome::applicationSilent:
        return MenuReadShortfall{name + " did not answer within " + inSeconds(limits.silence), isPartial};
    case MenuReadOutcome::tooSlow:
        return MenuReadShortfall{name + " did not answer everything within " + inSeconds(limits.total),
                                 isPartial};
    case MenuReadOutcome::treeTooLarge:
        return MenuReadShortfall{name + " has more menu items than are read at once", isPartial};
    case MenuReadOutcome::applicationGone:
        return MenuReadShortfall{name + " quit while its menus were read", isPartial};
    case MenuReadOutcome::menusUnfilled:
        return MenuReadShortfall{
            name + " fills its menus only when they are opened: open each of them once, or, "
                   "if the desktop's panel shows menus, set widget.gtk.global-menu.enabled "
                   "in about:config",
            false};
    case MenuReadOutcome::noAccessibilityBus:
        return MenuReadShortfall{"the accessibility bus cannot be reached", false};
    case MenuReadOutcome::noMenuBar:
    case MenuReadOutcome::notRegistered:
        break;
    }
    const bool isRegistered = report.outcome == MenuReadOutcome::noMenuBar;
    return MenuReadShortfall{
        name + (isRegistered ? " shows no menu bar" : " is not on the accessibility bus") +
            adviceOn(menuObstacleOf(application.processIdentifier()), isRegistered, isEnabled),
        false};
}

} // namespace tovrel
