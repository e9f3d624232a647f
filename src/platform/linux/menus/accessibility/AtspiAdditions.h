#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/linux/menus/accessibility/AtspiCalls.h"
#include "platform/linux/menus/source/MenuTree.h"

namespace tovrel {

/// What the accessible form of a menu bar adds to the bar as its window publishes it. Entries belong together
/// that have the same title in the same menu. Of an item only its name and what is added are asked, which is
/// half of what it takes to read the bar without knowing it. `entries` are the paths of what is in the
/// accessible bar.

/// Adds the shortcuts that are not published, by the key bindings of GTK.
void addAtspiAccelerators(AtspiCalls& calls, const std::vector<std::string>& entries, MenuTree& tree);

/// Replaces the states by those of an accessible form that is current while the published one is not. What
/// only one of the two has is left out: the accessible form has items that the user never sees, and what it
/// lacks is gone. An item whose accessible title goes on after a colon ("Undo: Typing" for "Undo") is the
/// same one; its title stays as it is published, which does not change with every step.
void replaceAtspiStates(AtspiCalls& calls, const std::vector<std::string>& entries, MenuTree& tree);

} // namespace tovrel
