#pragma once

#include "platform/linux/MenuTree.h"

namespace tovrel {

/// Adds to a menu bar what another source knows of the same one. Entries belong together that have the same
/// title in the same menu; of several with that title, the first with the first and so on.
///
/// - A shortcut of the other source replaces the present one: it is the one the application itself declares.
/// - A check mark is taken where none can be told so far.
/// - A menu without entries gets those of the other source, with their way of being pressed.
void joinMenus(MenuTree& tree, const MenuTree& other);

/// The menu bar `shown` with the states of `live`, another form of it that is current but not to be pressed.
///
/// Left out is what only one of them has: `live` has items that the user never sees, and what it lacks is
/// gone. An item whose title in `live` goes on after a colon ("Undo: Typing" for "Undo") is the same one; its
/// title stays what it is in `shown`, which does not change with every step.
MenuTree withLiveStates(const MenuTree& shown, const MenuTree& live);

/// Whether a menu of it has no entries.
bool hasEmptyMenu(const MenuTree& tree);

} // namespace tovrel
