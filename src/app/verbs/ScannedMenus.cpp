#include "app/verbs/ScannedMenus.h"

#include "app/terminal/ErrorLine.h"
#include "commands/CommandIndex.h"
#include "menus/MenuScanner.h"

namespace tovrel {

ScannedMenus scanMenus(const MenuSource& source, const TextServices& textServices) {
    ScannedMenus menus{
        .items = MenuScanner(*source.accessibility, textServices).scan(*source.application),
        .shortfall = std::nullopt,
    };
    if (source.shortfall) {
        menus.shortfall = source.shortfall();
    }
    return menus;
}

int reportShortfall(const ScannedMenus& menus, std::ostream& error) {
    if (!menus.shortfall) {
        return 0;
    }
    std::string line = menus.shortfall->reason;
    if (menus.shortfall->wasCutShort) {
        const std::size_t count = CommandIndex::flattenMenuItems(menus.items).size();
        line += "; showing the " + std::to_string(count) + (count == 1 ? " item" : " items") +
                " read before that";
    }
    printErrorLine(error, line);
    return menus.items.empty() ? 1 : 0;
}

} // namespace tovrel
