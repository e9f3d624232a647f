#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "menus/ScannedMenuItem.h"
#include "platform/Accessibility.h"
#include "platform/Workspace.h"
#include "settings/SettingsRecords.h"

namespace tovrel {

/// Where the settings learn of what is not stored. Each is asked anew on every reload.
struct SettingsProviders {
    std::function<std::optional<CurrentApplicationContext>()> currentApplication;
    std::function<std::vector<ScannedMenuItem>()> menuItems;
    std::function<bool()> accessibilityPermission;

    /// For settings that nobody opened for a certain application: whichever application is in front, this one
    /// included, and no menus.
    [[nodiscard]] static SettingsProviders standard(Workspace& workspace, Accessibility& accessibility);
};

/// Absent without an application or without an identifier of it. An application without a name is called by
/// its identifier.
[[nodiscard]] std::optional<CurrentApplicationContext>
currentApplicationContext(const RunningApplication* application);

} // namespace tovrel
