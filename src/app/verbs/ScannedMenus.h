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

/// Reports in one line on standard error what could not be read, if anything. Returns the exit status, which
/// is 1 when nothing was read. Must be called after the menus are printed.
int reportShortfall(const ScannedMenus& menus, std::ostream& error);

} // namespace tovrel
