#pragma once

#include <cstddef>

#include "platform/linux/menus/source/MenuTree.h"

namespace tovrel {

/// Removes entries from the menus so that the paths of the rest take at most `pathBytes` bytes together, each
/// title counted with the overhead of a Text. Entries nearer to the bar stay first. Returns whether anything
/// was removed.
bool boundPaths(MenuTree& tree, std::size_t pathBytes);

} // namespace tovrel
