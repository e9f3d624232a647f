#include "platform/linux/applications/LinuxWorkspace.h"

#include <set>
#include <unistd.h>
#include <utility>

#include "platform/linux/applications/DetachedProcess.h"
#include "platform/linux/applications/Process.h"

namespace tovrel {
namespace {

constexpr std::chrono::milliseconds focusChangePatience{50};

InstalledApplication installed(const DesktopEntry& entry) {
    return {.bundleIdentifier = entry.identifier,
            .name = entry.name,
            .icon = entry.icon.empty() ? std::nullopt : std::optional(ApplicationIcon{entry.icon})};
}

} // namespace

LinuxWorkspace::LinuxWorkspace(std::shared_ptr<WindowList> windows, std::shared_ptr<AtspiBus> bus,
                               std::shared_ptr<DesktopEntries> entries)
    : windows_(std::move(windows)), bus_(std::move(bus)), entries_(std::move(entries)),
      windowActivations_(windows_->onActivation([this](const ApplicationWindow& window) {
          activations_.notify(window.processIdentifier ? application(*window.processIdentifier, window)
                                                       : nullptr);
      })) {}

std::shared_ptr<RunningApplication> LinuxWorkspace::frontApplication() {
    const auto window = windows_->activeWindow(std::chrono::steady_clock::now() + focusChangePatience);
    if (!window || !window->processIdentifier) {
        return nullptr;
    }
    return application(*window->processIdentifier, window);
}

bool LinuxWorkspace::activate(const RunningApplication& application) {
    const auto windows = windows_->windowsOf(application.processIdentifier());
    return !windows.empty() && windows_->activate(windows.front().identifier);
}

Subscription
LinuxWorkspace::onActivation(std::function<void(const std::shared_ptr<RunningApplication>&)> observer) {
    return activations_.subscribe(std::move(observer));
}

std::optional<InstalledApplication> LinuxWorkspace::installedApplication(const Text& bundleIdentifier) {
    const DesktopEntry* entry = entries_->withIdentifier(bundleIdentifier.view());
    return entry == nullptr ? std::nullopt : std::optional(installed(*entry));
}

std::vector<InstalledApplication> LinuxWorkspace::installedApplications() {
    std::vector<InstalledApplication> applications;
    for (const DesktopEntry& entry : entries_->forMenus()) {
        applications.push_back(installed(entry));
    }
    return applications;
}

void LinuxWorkspace::open(const Text& url) {
    startDetached({"xdg-open", std::string(url.utf8())});
}

std::shared_ptr<LinuxRunningApplication>
LinuxWorkspace::applicationWithProcessIdentifier(std::int32_t processIdentifier) {
    if (!processStartTime(processIdentifier)) {
        return nullptr;
    }
    const auto windows = windows_->windowsOf(processIdentifier);
    return application(processIdentifier, windows.empty() ? std::nullopt : std::optional(windows.front()));
}

std::vector<std::shared_ptr<LinuxRunningApplication>>
LinuxWorkspace::applicationsWithIdentifier(const Text& identifier) {
    auto applications = runningApplications();
    std::erase_if(applications,
                  [&](const auto& application) { return application->bundleIdentifier() != identifier; });
    return applications;
}

std::vector<std::shared_ptr<LinuxRunningApplication>> LinuxWorkspace::applicationsWithWindows() {
    std::vector<std::shared_ptr<LinuxRunningApplication>> applications;
    std::set<std::int32_t> met;
    for (const ApplicationWindow& window : windows_->windows()) {
        if (window.processIdentifier && met.insert(*window.processIdentifier).second) {
            applications.push_back(application(*window.processIdentifier, window));
        }
    }
    return applications;
}

std::vector<std::shared_ptr<LinuxRunningApplication>> LinuxWorkspace::runningApplications() {
    auto applications = applicationsWithWindows();
    std::set<std::int32_t> met;
    for (const auto& withWindow : applications) {
        met.insert(withWindow->processIdentifier());
    }
    for (const AtspiApplication& onBus : bus_->applications().value_or(std::vector<AtspiApplication>())) {
        if (met.insert(onBus.processIdentifier).second) {
            applications.push_back(application(onBus.processIdentifier, std::nullopt));
        }
    }
    return applications;
}

std::shared_ptr<LinuxRunningApplication>
LinuxWorkspace::application(std::int32_t processIdentifier, const std::optional<ApplicationWindow>& window) {
    return processIdentifier == getpid()
               ? std::make_shared<LinuxRunningApplication>(LinuxRunningApplication::ofThisProcess())
               : std::make_shared<LinuxRunningApplication>(processIdentifier, window, *entries_);
}

} // namespace tovrel
