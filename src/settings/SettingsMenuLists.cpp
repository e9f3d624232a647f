#include "settings/SettingsMenuLists.h"

#include <algorithm>

#include "commands/CommandIndex.h"
#include "model/MenuPath.h"

namespace tovrel::settings_menu_lists {
namespace {

Text titleOf(const std::vector<Text>& path) {
    return joined(path, " > ");
}

} // namespace

std::vector<SettingsMenuRuleCandidate> ruleCandidates(const std::vector<ScannedMenuItem>& menuItems,
                                                      const std::optional<Text>& bundleID,
                                                      const std::vector<MenuBlacklistRule>& rules) {
    std::vector<SettingsMenuRuleCandidate> candidates;
    for (const ScannedMenuItem* item : CommandIndex::flattenMenuItems(menuItems)) {
        const std::vector<Text>& path = item->menuPath;
        if (path.empty() || CommandIndex::isInSystemMenu(path)) {
            continue;
        }
        const bool isCovered = std::any_of(rules.begin(), rules.end(), [&](const MenuBlacklistRule& rule) {
            return rule.appScope == bundleID && rule.targetPath == path;
        });
        if (!isCovered) {
            candidates.push_back({joined(path, menuPathSeparator), titleOf(path), path});
        }
    }
    return candidates;
}

std::vector<SettingsMenuCommandSetting> commandSettings(const std::vector<ScannedMenuItem>& menuItems,
                                                        const std::optional<Text>& bundleID,
                                                        const std::vector<MenuCommandAliasRule>& aliasRules,
                                                        const CommandHistorySnapshot& history) {
    std::vector<SettingsMenuCommandSetting> settings;
    for (const ScannedMenuItem* item : CommandIndex::flattenMenuItems(menuItems)) {
        if (!CommandIndex::isCommand(*item) || CommandIndex::isInSystemMenu(item->menuPath)) {
            continue;
        }
        const std::vector<Text>& path = item->menuPath;
        settings.push_back(
            {.id = joined(path, menuPathSeparator),
             .title = titleOf(path),
             .targetPath = path,
             .aliases = CommandIndex::aliasesForMenuPath(path, bundleID, aliasRules),
             .isFavorite = history.rankSignals(CommandIndex::menuCommandID(path, bundleID)).isFavorite});
    }
    return settings;
}

} // namespace tovrel::settings_menu_lists
