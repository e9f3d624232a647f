#pragma once

#include <string>
#include <vector>

#include "app/terminal/Console.h"
#include "app/verbs/MenuSource.h"
#include "menus/ScannedMenuItem.h"
#include "support/TextServices.h"

namespace tovrel {

/// An application's menus as far as they could be read.
struct ScannedMenus {
    std::vector<ScannedMenuItem> items;
    std::optional<MenuReadShortfall> shortfall;
};

ScannedMenus scanMenus(const MenuSource& source, const TextServices& textServices);

/// Says in one line on standard error what was not read, if anything, and returns the exit status: 1 when
/// that leaves nothing at all. To be called after what was read has been printed.
int reportShortfall(const ScannedMenus& menus, std::ostream& error);

} // namespace tovrel
