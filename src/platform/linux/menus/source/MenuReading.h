#pragma once

#include "platform/linux/dbus/BoundedCalls.h"
#include "platform/linux/dbus/MenuReadReport.h"
#include "platform/linux/menus/source/MenuTree.h"

namespace tovrel {

/// A menu bar as far as one source had it, and how reading it went.
struct MenuReading {
    MenuTree tree;
    MenuReadReport report;
};

/// What the calls have come to that began at `started`. `isTooLarge`: the limits cut something off.
MenuReading finishedReading(MenuTree tree, bool isTooLarge, const BoundedCalls& calls, SteadyTime started);

} // namespace tovrel
