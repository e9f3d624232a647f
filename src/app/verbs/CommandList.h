#pragma once

#include <vector>

#include "app/verbs/MenuSource.h"
#include "app/verbs/ScannedMenus.h"
#include "model/Command.h"
#include "platform/PreferencesDomain.h"
#include "support/TextServices.h"

namespace tovrel {

/// The commands that the palette would list for the application.
struct CommandList {
    std::vector<Command> commands;
    ScannedMenus menus;
};

/// Reads the application's menus and builds the list from them and the preferences. Also lists commands of an
/// application for which the palette is turned off.
CommandList buildCommandList(const MenuSource& source, PreferencesDomain& preferences,
                             const TextServices& textServices);

} // namespace tovrel
