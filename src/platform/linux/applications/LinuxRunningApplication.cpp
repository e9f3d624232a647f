#include "platform/linux/applications/LinuxRunningApplication.h"

#include <unistd.h>

#include "platform/linux/applications/Process.h"

namespace tovrel {
namespace {

const DesktopEntry* entryOfWindow(const ApplicationWindow& window, DesktopEntries& entries) {
    if (!window.applicationIdentifier.empty()) {
        if (const DesktopEntry* entry = entries.withIdentifier(window.applicationIdentifier)) {
            return entry;
        }
    }
    for (const std::string& name : {window.className, window.instanceName}) {
        if (const DesktopEntry* entry = entries.withStartupWMClass(name)) {
            return entry;
        }
    }
    for (const std::string& name : {window.className, window.instanceName}) {
        if (const DesktopEntry* entry = entries.named(name)) {
            return entry;
        }
    }
    return nullptr;
}

const DesktopEntry* entryOfProcess(std::int32_t processIdentifier, DesktopEntries& entries) {
    for (const std::string& name : {processExecutable(processIdentifier), processScript(processIdentifier)}) {
        if (const DesktopEntry* entry = entries.withExecutable(name)) {
            return entry;
        }
    }
    return nullptr;
}

} // namespace

LinuxRunningApplication::LinuxRunningApplication(std::int32_t processIdentifier,
                                                 const std::optional<ApplicationWindow>& window,
                                                 DesktopEntries& entries)
    : processIdentifier_(processIdentifier), startTime_(processStartTime(processIdentifier)) {
    const DesktopEntry* entry = window ? entryOfWindow(*window, entries) : nullptr;
    if (entry == nullptr) {
        entry = entryOfProcess(processIdentifier, entries);
    }
    if (entry != nullptr) {
        identifier_ = entry->identifier;
        name_ = entry->name;
        if (!entry->icon.empty()) {
            icon_ = ApplicationIcon{Text(entry->icon)};
        }
    } else if (window && !window->className.empty()) {
        name_ = Text(window->className);
    } else if (std::string executable = processExecutable(processIdentifier); !executable.empty()) {
        name_ = Text(std::move(executable));
    }
}

LinuxRunningApplication::LinuxRunningApplication()
    : processIdentifier_(getpid()), startTime_(processStartTime(processIdentifier_)),
      identifier_("org.tovrel.Tovrel"), name_("Tovrel"), icon_(ApplicationIcon{"org.tovrel.Tovrel"}) {}

LinuxRunningApplication LinuxRunningApplication::ofThisProcess() {
    return {};
}

bool LinuxRunningApplication::isTerminated() const {
    return !startTime_ || processStartTime(processIdentifier_) != startTime_;
}

} // namespace tovrel
