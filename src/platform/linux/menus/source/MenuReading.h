#pragma once

#include <string_view>

#include "platform/linux/dbus/AnswerBudget.h"
#include "platform/linux/dbus/BoundedCalls.h"
#include "platform/linux/menus/source/MenuReadReport.h"
#include "platform/linux/menus/source/MenuTree.h"

namespace tovrel {

/// A menu bar as far as one source had it, and how reading it went.
struct MenuReading {
    MenuTree tree;
    MenuReadReport report;
};

/// The reading of a source in which the application has nothing.
MenuReading emptyReading();

/// What the calls have come to that began at `started`. `isTooLarge`: the limits cut something off.
MenuReading finishedReading(MenuTree tree, bool isTooLarge, const BoundedCalls& calls, SteadyTime started);

/// What it means for a read of menus that its calls were cut short.
MenuReadOutcome outcomeOf(CallsStopped stopped);

/// Nothing that lies behind a silent application is worth another wait, and nothing behind one that has gone.
bool isUnreachable(MenuReadOutcome outcome);

/// Whether calls were given up whose answers may still come. The connection is to be dropped then, because
/// the bus would keep account of them.
bool leavesCallsBehind(MenuReadOutcome outcome);

/// What may become a title, cut where no title goes on (see `menuTitle`), and kept from now on. Empty when
/// the room for texts has run out.
std::string_view keptTitle(std::string_view text, AnswerBudget& budget);

} // namespace tovrel
