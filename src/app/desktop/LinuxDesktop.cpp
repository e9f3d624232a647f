#include "app/desktop/LinuxDesktop.h"

#include <utility>

#include "app/desktop/LinuxMenuShortfall.h"
#include "platform/linux/applications/DesktopEntries.h"
#include "platform/linux/applications/PosixProcessRunner.h"
#include "platform/linux/dbus/SessionBus.h"
#include "platform/linux/keyboard/VirtualKeyCodes.h"

namespace tovrel {

LinuxDesktop::LinuxDesktop(std::unique_ptr<LinuxDisplay> display)
    : display_(std::move(display)), windows_(display_->windows()),
      accessibilityBus_(std::make_shared<AtspiBus>(display_->accessibilityBusAddress())),
      workspace_(std::make_shared<LinuxWorkspace>(
          windows_, accessibilityBus_, std::make_shared<DesktopEntries>(DesktopEntries::ofEnvironment()))),
      accessibility_({accessibilityBus_, std::make_shared<SessionBus>()},
                     [windows = windows_](std::int32_t processIdentifier) {
                         return windows->windowsOf(processIdentifier);
                     }),
      toolkitAccessibility_(accessibilityBus_, workspace_) {}

std::shared_ptr<RunningApplication>
LinuxDesktop::applicationWithProcessIdentifier(std::int32_t processIdentifier) {
    return workspace_->applicationWithProcessIdentifier(processIdentifier);
}

std::vector<std::shared_ptr<RunningApplication>>
LinuxDesktop::applicationsWithIdentifier(const Text& bundleIdentifier) {
    const auto found = workspace_->applicationsWithIdentifier(bundleIdentifier);
    return {found.begin(), found.end()};
}

std::optional<MenuReadShortfall> LinuxDesktop::menuShortfall(const RunningApplication& application) {
    const auto report = accessibility_.lastReport();
    return report ? linuxMenuShortfall(*report, application, accessibilityBus_->isEnabled()) : std::nullopt;
}

AccessibilitySwitch LinuxDesktop::accessibilitySwitch() {
    return {.isEnabled = [this] { return toolkitAccessibility_.isEnabled(); },
            .setEnabled = [this](bool isEnabled) { return toolkitAccessibility_.setEnabled(isEnabled); },
            .applicationsToRestart = [this] { return toolkitAccessibility_.applicationsToRestart(); }};
}

std::optional<std::uint32_t> LinuxDesktop::keyCode(std::uint32_t nativeScanCode) const {
    return virtualKeyCodeOfXkb(nativeScanCode);
}

ResidentSeams LinuxDesktop::makeResidentSeams(MainQueue& queue,
                                              std::function<KeyDestination()> keyDestination,
                                              const ToolkitConnection& toolkit) {
    ResidentSeams seams = display_->makeResidentSeams(queue, std::move(keyDestination), toolkit);
    auto processRunner = std::make_unique<PosixProcessRunner>(queue);
    seams.events.push_back({.source = processRunner.get()});
    seams.processRunner = std::move(processRunner);
    return seams;
}

} // namespace tovrel
