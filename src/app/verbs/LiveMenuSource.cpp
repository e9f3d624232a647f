#include <chrono>

#include "app/desktop/OpenDesktop.h"
#include "app/terminal/Failure.h"
#include "app/verbs/MenuSource.h"

namespace tovrel {
namespace {

std::shared_ptr<RunningApplication> runningApplication(const command_line::MenuSourceOptions& options,
                                                       Desktop& desktop) {
    if (options.processIdentifier) {
        if (auto application = desktop.applicationWithProcessIdentifier(*options.processIdentifier)) {
            return application;
        }
        throw Failure("there is no process " + std::to_string(*options.processIdentifier));
    }
    if (options.bundleIdentifier) {
        const auto applications = desktop.applicationsWithIdentifier(Text(*options.bundleIdentifier));
        if (applications.empty()) {
            throw Failure("no running application has the identifier \"" + *options.bundleIdentifier + "\"");
        }
        return applications.front();
    }
    if (const auto problem = desktop.displayProblem()) {
        throw Failure(*problem + " to find the front application on; name one with --pid or --app");
    }
    if (auto application = desktop.workspace().frontApplication()) {
        return application;
    }
    throw Failure("no application is in front; name one with --pid or --app");
}

} // namespace

MenuSource liveMenuSource(const command_line::MenuSourceOptions& options) {
    const std::shared_ptr<Desktop> desktop = openDesktop();
    if (!desktop) {
        throw Failure("applications of this system cannot be read yet; name a recording with --recording");
    }
    const std::shared_ptr<RunningApplication> application = runningApplication(options, *desktop);
    return {.application = application,
            .accessibility = std::shared_ptr<Accessibility>(desktop, &desktop->accessibility()),
            .isRecording = false,
            .shortfall = [=] { return desktop->menuShortfall(*application); },
            .bringToFront =
                [=] {
                    // A window manager needs a few milliseconds.
                    constexpr std::chrono::milliseconds patience{500};
                    Workspace& workspace = desktop->workspace();
                    const auto front = workspace.frontApplication();
                    const bool isFront =
                        front && front->processIdentifier() == application->processIdentifier();
                    return !isFront && workspace.activate(*application) &&
                           desktop->windows().waitUntilActive(application->processIdentifier(),
                                                              std::chrono::steady_clock::now() + patience);
                }};
}

} // namespace tovrel
