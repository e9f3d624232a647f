#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/linux/menus/accessibility/AtspiCalls.h"
#include "platform/linux/menus/source/MenuTree.h"

namespace tovrel {

/// Additions from the accessible form of a menu bar to the bar that its window publishes. Entries match that
/// have the same title in the same menu. Each item is asked only for its name and the addition, half the
/// calls that reading an unknown bar takes. `entries` are the paths of the accessible bar's entries.

/// Adds the shortcuts that are not published, from GTK's key bindings.
void addAtspiAccelerators(AtspiCalls& calls, const std::vector<std::string>& entries, MenuTree& tree);

/// Replaces the states by those of the accessible form, if it is current while the published form is not.
/// Items that only one form has are left out: the accessible form has items that the user never sees, and
/// items that it lacks are gone. An item whose accessible title continues after a colon ("Undo: Typing" for
/// "Undo") is the same item; it keeps its published title, which does not change with every step.
void replaceAtspiStates(AtspiCalls& calls, const std::vector<std::string>& entries, MenuTree& tree);

} // namespace tovrel
