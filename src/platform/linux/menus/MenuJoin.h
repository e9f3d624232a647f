#pragma once

#include "platform/linux/menus/source/MenuTree.h"

namespace tovrel {

/// Adds to a menu bar what another source knows of the same bar. Entries match that have the same title in
/// the same menu; of several with the same title, the first matches the first, and so on.
///
/// - A shortcut of the other source replaces the present one, because the application itself declares it.
/// - A check mark is added where the tree does not know one.
/// - A menu without entries gets the entries of the other source, which can be pressed as there.
void joinMenus(MenuTree& tree, const MenuTree& other);

} // namespace tovrel
