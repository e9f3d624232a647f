#pragma once

#include "platform/linux/menus/source/MenuTree.h"

namespace tovrel {

/// Adds to a menu bar what another source knows of the same one. Entries belong together that have the same
/// title in the same menu; of several with that title, the first with the first and so on.
///
/// - A shortcut of the other source replaces the present one: it is the one the application itself declares.
/// - A check mark is taken where none can be told so far.
/// - A menu without entries gets those of the other source, with their way of being pressed.
void joinMenus(MenuTree& tree, const MenuTree& other);

} // namespace tovrel
