#include "app/verbs/CommandList.h"

#include <utility>

#include "app/coordinator/StorageKeys.h"
#include "commands/CommandIndex.h"
#include "stores/CommandHistoryStore.h"
#include "stores/CustomCommandStore.h"
#include "stores/RulesStore.h"

namespace tovrel {

CommandList buildCommandList(const MenuSource& source, PreferencesDomain& preferences,
                             const TextServices& textServices) {
    ScannedMenus menus = scanMenus(source, textServices);
    const CustomCommandStore customCommands(preferences, storage_keys::customCommands);
    const RulesStore rules(preferences, textServices);
    CommandHistoryStore history(preferences, storage_keys::commandHistory, textServices);
    std::vector<Command> commands = CommandIndex::buildCommands(
        menus.items, customCommands.customCommands(), source.application->bundleIdentifier(),
        rules.menuBlacklistRules(), rules.menuCommandAliasRules(), history);
    return {.commands = std::move(commands), .menus = std::move(menus)};
}

} // namespace tovrel
