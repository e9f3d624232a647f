#pragma once

#include <string>

#include "platform/linux/menus/accessibility/AtspiNode.h"
#include "platform/linux/menus/source/MenuTree.h"

namespace tovrel {

/// An object on the accessibility bus, which its first action presses.
struct AtspiObject {
    std::string busName;
    std::string path;
};

/// Turns an application's answers into menus. The `item` of each node is an AtspiObject, and each node keeps
/// its position.
///
/// - A title is the name up to a TAB, without white space at its ends (some programs pad their names).
/// - Children do not include separators, even with a name (sections), tear-offs, hidden items, leaves without
///   a title (unused slots of lists of recent files), and objects that are no part of a menu.
/// - In Gecko, children do not include a submenu that was never filled: a press of it does nothing.
/// - In GTK an item is hidden if it is not "visible", unless no item is, because such an application does not
///   tell (LibreOffice). In Qt it is hidden if it is not sensitive and does not implement Component. Other
///   toolkits do not tell.
/// - An item is enabled if it and all its ancestors are sensitive: an item below a disabled menu would run
///   although the user cannot reach it.
/// - An item's state tells whether it is checked. If it is not, only a special role shows that it could be. A
///   plain item may be a checkable one whose mark another source tells, or none.
MenuTree menuTreeOf(const AtspiMenuTree& tree);

} // namespace tovrel
