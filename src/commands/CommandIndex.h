#pragma once

#include <optional>
#include <vector>

#include "menus/ScannedMenuItem.h"
#include "model/Command.h"
#include "model/Rules.h"
#include "stores/CommandHistoryStore.h"

namespace tovrel {

/// Builds the flat list of commands to search from the knowledge about the front application.
struct CommandIndex {
    /// The menu commands (leaves of the tree in menu order, without the system menu and what the blacklist
    /// rules hide), then the enabled custom commands in stored order. Disabled menu items are included.
    /// All rules of all applications may be passed; `bundleID`, absent when unknown, selects among them.
    /// Two menu items with the same path give two commands with the same id.
    [[nodiscard]] static std::vector<Command>
    buildCommands(const std::vector<ScannedMenuItem>& menuItems,
                  const std::vector<CustomCommand>& customCommands, const std::optional<Text>& bundleID,
                  const std::vector<MenuBlacklistRule>& blacklistRules,
                  const std::vector<MenuCommandAliasRule>& aliasRules, CommandHistoryStore& historyStore);

    /// Every node of the forest, each followed by its descendants before its next sibling.
    [[nodiscard]] static std::vector<const ScannedMenuItem*>
    flattenMenuItems(const std::vector<ScannedMenuItem>& items);

    /// Whether the item is a command: a titled leaf below a menu.
    [[nodiscard]] static bool isCommand(const ScannedMenuItem& item);

    /// Whether the (non-empty) path starts in the system's own menu, the leftmost of its menu bar.
    [[nodiscard]] static bool isInSystemMenu(const std::vector<Text>& menuPath);

    /// The id that the command at the path has in the list and in the history.
    [[nodiscard]] static Text menuCommandID(const std::vector<Text>& menuPath,
                                            const std::optional<Text>& bundleID);

    /// The aliases of the first rule whose scope equals `bundleID` (both absent, or both present and equal)
    /// and whose path equals `menuPath`; empty when no rule does.
    [[nodiscard]] static std::vector<Text>
    aliasesForMenuPath(const std::vector<Text>& menuPath, const std::optional<Text>& bundleID,
                       const std::vector<MenuCommandAliasRule>& aliasRules);
};

} // namespace tovrel
