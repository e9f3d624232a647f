#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/linux/AtspiCalls.h"
#include "platform/linux/MenuTree.h"

namespace tovrel {

/// Adds to a menu bar of GTK the shortcuts that it does not have, by the key bindings of the accessible items
/// with the same titles. `entries` are the paths of what is in the accessible bar.
///
/// Of an item only its name and its key binding are asked, of a menu its name and its entries, which is half
/// of what it takes to read the bar without knowing it. False when nobody answered.
bool addAtspiAccelerators(AtspiCalls& calls, const std::vector<std::string>& entries, MenuTree& tree);

} // namespace tovrel
