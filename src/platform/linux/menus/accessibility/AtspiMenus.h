#pragma once

#include <string>

#include "platform/linux/menus/accessibility/AtspiNode.h"
#include "platform/linux/menus/source/MenuTree.h"

namespace tovrel {

/// An object on the accessibility bus, pressed by its first action.
struct AtspiObject {
    std::string busName;
    std::string path;
};

/// What an application answered, as menus, the `item` of each node an AtspiObject. Each node keeps its
/// position.
///
/// - A title is the name up to a TAB, without white space at its ends (some programs pad their names).
/// - Left out of the children: separators, also those with a name (sections), tear-offs, hidden items, leaves
///   without a title (unused slots of lists of recent files), and whatever is no part of a menu.
/// - Left out in Gecko is also a submenu that was never filled: nothing happens when it is pressed.
/// - Hidden in GTK is what is not "visible", unless nothing is, because then the application does not tell
///   (LibreOffice); in Qt what is neither sensitive nor implements Component. Elsewhere nothing tells.
/// - Enabled is what is sensitive below ancestors that all are: an item below a disabled menu would run
///   although the user cannot reach it.
/// - Whether an item is checked is told by its state; where it is not checked, only a role of its own shows
///   that it could be. A plain item may be a checkable one whose mark is told elsewhere, or nowhere.
MenuTree menuTreeOf(const AtspiMenuTree& tree);

} // namespace tovrel
