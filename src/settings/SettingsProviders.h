#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "menus/ScannedMenuItem.h"
#include "platform/Accessibility.h"
#include "platform/Workspace.h"
#include "settings/SettingsRecords.h"

namespace tovrel {

/// Functions that provide what the settings show but do not store. Each is called on every reload.
struct SettingsProviders {
    std::function<std::optional<CurrentApplicationContext>()> currentApplication;
    std::function<std::vector<ScannedMenuItem>()> menuItems;
    std::function<bool()> accessibilityPermission;

    /// The providers for settings that were not opened for a certain application. They give the application
    /// in front, even this one, and no menus.
    [[nodiscard]] static SettingsProviders standard(Workspace& workspace, Accessibility& accessibility);
};

/// The application as the settings show it; absent without an application or without its identifier. An
/// application without a name is shown by its identifier.
[[nodiscard]] std::optional<CurrentApplicationContext>
currentApplicationContext(const RunningApplication* application);

} // namespace tovrel
