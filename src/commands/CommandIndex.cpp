#include "commands/CommandIndex.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "support/Fatal.h"

namespace tovrel {
namespace {

void appendFlattened(const std::vector<ScannedMenuItem>& items, std::vector<const ScannedMenuItem*>& flat) {
    for (const ScannedMenuItem& item : items) {
        flat.push_back(&item);
        appendFlattened(item.children, flat);
    }
}

bool isPrefix(const std::vector<Text>& prefix, const std::vector<Text>& path) {
    return prefix.size() <= path.size() && std::equal(prefix.begin(), prefix.end(), path.begin());
}

bool isHiddenBy(const MenuBlacklistRule& rule, const std::vector<Text>& path) {
    switch (rule.mode) {
    case MenuBlacklistMode::excludeSelf:
        return path == rule.targetPath;
    case MenuBlacklistMode::excludeChildren:
        return path.size() > rule.targetPath.size() && isPrefix(rule.targetPath, path);
    case MenuBlacklistMode::excludeSelfAndChildren:
        return isPrefix(rule.targetPath, path);
    }
    noSuchValue("MenuBlacklistMode");
}

/// The rules that apply to the application: those without a scope, and its own.
std::vector<const MenuBlacklistRule*> applyingRules(const std::vector<MenuBlacklistRule>& rules,
                                                    const std::optional<Text>& bundleID) {
    std::vector<const MenuBlacklistRule*> applying;
    for (const MenuBlacklistRule& rule : rules) {
        if (!rule.appScope || rule.appScope == bundleID) {
            applying.push_back(&rule);
        }
    }
    return applying;
}

Command menuCommand(const ScannedMenuItem& item, const std::optional<Text>& bundleID,
                    std::vector<Text> aliases, const CommandHistorySnapshot& history) {
    Text id = CommandIndex::menuCommandID(item.menuPath, bundleID);
    const std::vector<Text> parents(item.menuPath.begin(), item.menuPath.end() - 1);
    CommandRankSignals signals = history.rankSignals(id);
    return {.id = std::move(id),
            .source = CommandSource::menu,
            .appScope = bundleID,
            .title = item.title,
            .subtitle = joined(parents, " › "),
            .menuPath = item.menuPath,
            .shortcut = item.shortcut,
            .aliases = std::move(aliases),
            .searchTokens = item.menuPath,
            .isEnabled = item.isEnabled,
            .isChecked = item.isChecked,
            .rankSignals = signals,
            .action = MenuAction{item.menuPath}};
}

Command customCommandEntry(const CustomCommand& custom, const CommandHistorySnapshot& history) {
    Text id = "custom:" + custom.id.utf8();
    CommandRankSignals signals = history.rankSignals(id);
    return {.id = std::move(id),
            .source = CommandSource::custom,
            .appScope = custom.appScope,
            .title = custom.title,
            .subtitle = paletteLabel(custom.kind),
            .menuPath = {},
            .shortcut = std::nullopt,
            .aliases = custom.aliases,
            .searchTokens = {rawValue(custom.kind), custom.payload},
            .isEnabled = custom.isEnabled,
            .isChecked = false,
            .rankSignals = signals,
            .action = custom};
}

} // namespace

std::vector<const ScannedMenuItem*>
CommandIndex::flattenMenuItems(const std::vector<ScannedMenuItem>& items) {
    std::vector<const ScannedMenuItem*> flat;
    appendFlattened(items, flat);
    return flat;
}

bool CommandIndex::isCommand(const ScannedMenuItem& item) {
    return item.menuPath.size() > 1 && !item.title.empty() && item.children.empty();
}

bool CommandIndex::isInSystemMenu(const std::vector<Text>& menuPath) {
    return menuPath.front() == "Apple" || menuPath.front() == "\uF8FF";
}

Text CommandIndex::menuCommandID(const std::vector<Text>& menuPath, const std::optional<Text>& bundleID) {
    return "menu:" + (bundleID ? bundleID->utf8() : "global") + ":" + joined(menuPath, "/").utf8();
}

std::vector<Text> CommandIndex::aliasesForMenuPath(const std::vector<Text>& menuPath,
                                                   const std::optional<Text>& bundleID,
                                                   const std::vector<MenuCommandAliasRule>& aliasRules) {
    const auto rule =
        std::find_if(aliasRules.begin(), aliasRules.end(), [&](const MenuCommandAliasRule& candidate) {
            return candidate.appScope == bundleID && candidate.targetPath == menuPath;
        });
    return rule == aliasRules.end() ? std::vector<Text>() : rule->aliases;
}

std::vector<Command> CommandIndex::buildCommands(const std::vector<ScannedMenuItem>& menuItems,
                                                 const std::vector<CustomCommand>& customCommands,
                                                 const std::optional<Text>& bundleID,
                                                 const std::vector<MenuBlacklistRule>& blacklistRules,
                                                 const std::vector<MenuCommandAliasRule>& aliasRules,
                                                 CommandHistoryStore& historyStore) {
    const std::shared_ptr<const CommandHistorySnapshot> history = historyStore.snapshot();
    const std::vector<const MenuBlacklistRule*> hiding = applyingRules(blacklistRules, bundleID);

    std::vector<Command> commands;
    for (const ScannedMenuItem* item : flattenMenuItems(menuItems)) {
        if (!isCommand(*item) || isInSystemMenu(item->menuPath)) {
            continue;
        }
        const bool isHidden = std::any_of(hiding.begin(), hiding.end(), [&](const MenuBlacklistRule* rule) {
            return isHiddenBy(*rule, item->menuPath);
        });
        if (!isHidden) {
            commands.push_back(menuCommand(
                *item, bundleID, aliasesForMenuPath(item->menuPath, bundleID, aliasRules), *history));
        }
    }
    for (const CustomCommand& custom : customCommands) {
        if (custom.isEnabled && (!custom.appScope || custom.appScope == bundleID)) {
            commands.push_back(customCommandEntry(custom, *history));
        }
    }
    return commands;
}

} // namespace tovrel
