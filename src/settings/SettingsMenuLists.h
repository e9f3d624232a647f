#pragma once

#include <optional>
#include <vector>

#include "menus/ScannedMenuItem.h"
#include "model/Rules.h"
#include "settings/SettingsRecords.h"
#include "stores/CommandHistoryStore.h"

/// The settings' lists of an application's menu items, in menu order and without the system's own menu.
namespace tovrel::settings_menu_lists {

/// Every item of the tree, including menus and submenus, that has no rule with exactly its path. Only rules
/// whose scope equals `bundleID` count (both absent, or both present and equal). Items with the same path are
/// listed as often as they occur.
[[nodiscard]] std::vector<SettingsMenuRuleCandidate>
ruleCandidates(const std::vector<ScannedMenuItem>& menuItems, const std::optional<Text>& bundleID,
               const std::vector<MenuBlacklistRule>& rules);

/// The leaves of the tree below its menus, enabled or not, with their stored search settings.
[[nodiscard]] std::vector<SettingsMenuCommandSetting>
commandSettings(const std::vector<ScannedMenuItem>& menuItems, const std::optional<Text>& bundleID,
                const std::vector<MenuCommandAliasRule>& aliasRules, const CommandHistorySnapshot& history);

} // namespace tovrel::settings_menu_lists
