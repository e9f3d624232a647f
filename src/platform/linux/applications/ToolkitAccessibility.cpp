#include "platform/linux/applications/ToolkitAccessibility.h"

#include <algorithm>
#include <unistd.h>

namespace tovrel {

std::vector<Text> ToolkitAccessibility::applicationsToRestart() {
    const auto onBus = bus_->applications();
    std::vector<Text> names;
    if (!onBus) {
        return names;
    }
    for (const auto& application : workspace_->applicationsWithWindows()) {
        const std::int32_t process = application->processIdentifier();
        const bool isOnBus = std::any_of(onBus->begin(), onBus->end(), [&](const AtspiApplication& other) {
            return other.processIdentifier == process;
        });
        const auto name = application->localizedName();
        if (process != getpid() && !isOnBus && name) {
            names.push_back(*name);
        }
    }
    return names;
}

} // namespace tovrel
