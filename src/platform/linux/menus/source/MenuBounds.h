#pragma once

#include <cstddef>

#include "platform/linux/menus/source/MenuTree.h"

namespace tovrel {

/// Takes entries out of the menus so that the paths of the others together take at most so many bytes, each
/// title counted with what a Text takes besides. What is nearer to the bar stays first. Whether anything was
/// taken out.
bool boundPaths(MenuTree& tree, std::size_t pathBytes);

} // namespace tovrel
