#pragma once

#include <string_view>

#include "platform/linux/dbus/AnswerBudget.h"
#include "platform/linux/dbus/BoundedCalls.h"
#include "platform/linux/menus/source/MenuReadReport.h"
#include "platform/linux/menus/source/MenuTree.h"

namespace tovrel {

/// A menu bar, as far as one source has it, and the report on the read.
struct MenuReading {
    MenuTree tree;
    MenuReadReport report;
};

/// The reading from a source in which the application publishes nothing.
MenuReading emptyReading();

/// The result of calls that began at `started`. `isTooLarge` tells that the limits cut something off.
MenuReading finishedReading(MenuTree tree, bool isTooLarge, const BoundedCalls& calls, SteadyTime started);

/// The outcome of a read whose calls were cut short.
MenuReadOutcome outcomeOf(CallsStopped stopped);

/// Whether no other source is worth asking: the application is silent, too slow or gone.
bool isUnreachable(MenuReadOutcome outcome);

/// Whether calls were given up whose answers may still come. The caller must then drop the connection,
/// because the bus would keep track of them.
bool leavesCallsBehind(MenuReadOutcome outcome);

/// Counts a text that may become a title, and returns the part that is examined for one (see
/// `longestMenuName`). Empty when the room for texts has run out.
std::string_view keptTitle(std::string_view text, AnswerBudget& budget);

} // namespace tovrel
