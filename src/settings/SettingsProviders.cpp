#include "settings/SettingsProviders.h"

#include <memory>

namespace tovrel {

SettingsProviders SettingsProviders::standard(Workspace& workspace, Accessibility& accessibility) {
    return {.currentApplication =
                [&workspace] { return currentApplicationContext(workspace.frontApplication().get()); },
            .menuItems = [] { return std::vector<ScannedMenuItem>(); },
            .accessibilityPermission = [&accessibility] { return accessibility.isTrusted(); }};
}

std::optional<CurrentApplicationContext> currentApplicationContext(const RunningApplication* application) {
    const std::optional<Text> bundleID =
        application == nullptr ? std::nullopt : application->bundleIdentifier();
    if (!bundleID) {
        return std::nullopt;
    }
    return CurrentApplicationContext{application->localizedName().value_or(*bundleID), *bundleID};
}

} // namespace tovrel
