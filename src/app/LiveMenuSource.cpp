#include <utility>

#include "app/Failure.h"
#include "app/MenuReadShortfall.h"
#include "app/MenuSource.h"
#include "platform/linux/LinuxAccessibility.h"
#include "platform/linux/LinuxWorkspace.h"

namespace tovrel {
namespace {

std::shared_ptr<RunningApplication> resolveApplication(const command_line::MenuSourceOptions& options,
                                                       LinuxWorkspace& workspace, const X11Windows& windows) {
    if (options.processIdentifier) {
        if (auto application = workspace.applicationWithProcessIdentifier(*options.processIdentifier)) {
            return application;
        }
        throw Failure("no process has the identifier " + std::to_string(*options.processIdentifier));
    }
    if (options.bundleIdentifier) {
        const auto running = workspace.applicationsWithIdentifier(*options.bundleIdentifier);
        if (!running.empty()) {
            return running.front();
        }
        throw Failure("no running application has the identifier \"" + *options.bundleIdentifier + "\"");
    }
    if (auto application = workspace.frontApplication()) {
        return application;
    }
    throw Failure(std::string(windows.isAvailable() ? "no application is in front"
                                                    : "without a display no application is in front") +
                  "; name one with --pid, --app or --recording");
}

std::string nameOf(const RunningApplication& application) {
    const auto name = application.localizedName();
    return name ? name->utf8() : "process " + std::to_string(application.processIdentifier());
}

} // namespace

MenuSource liveMenuSource(const command_line::MenuSourceOptions& options) {
    const auto windows = std::make_shared<X11Windows>();
    const auto bus = std::make_shared<AtspiBus>([windows] { return windows->accessibilityBusAddress(); });
    LinuxWorkspace workspace(windows, bus, std::make_shared<DesktopEntries>(DesktopEntries::ofEnvironment()));
    std::shared_ptr<RunningApplication> application = resolveApplication(options, workspace, *windows);

    const auto windowTitle = [windows](std::int32_t processIdentifier) -> std::optional<Text> {
        const auto window = windows->frontWindow(processIdentifier);
        return window ? std::optional(window->title) : std::nullopt;
    };
    const auto accessibility = std::make_shared<LinuxAccessibility>(bus, windowTitle);
    const auto shortfall = [accessibility,
                            name = nameOf(*application)]() -> std::optional<MenuReadShortfall> {
        const auto report = accessibility->lastReport();
        if (!report || report->outcome == MenuReadOutcome::completed) {
            return std::nullopt;
        }
        return menuReadShortfall(*report, name, accessibility->isTrusted());
    };
    return {.application = std::move(application),
            .accessibility = accessibility,
            .isRecording = false,
            .shortfall = shortfall};
}

} // namespace tovrel
