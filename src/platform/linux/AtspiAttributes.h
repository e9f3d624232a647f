#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "platform/linux/AtspiKeyBinding.h"
#include "platform/linux/AtspiNode.h"
#include "support/Text.h"

namespace tovrel {

/// What a node of a menu tree answers as menu attributes.
struct AtspiAttributes {
    Text title;                           ///< "AXTitle".
    std::optional<bool> isEnabled;        ///< "AXEnabled"; absent when the states were not read.
    bool isChecked = false;               ///< "AXMenuItemMarkChar" is "✓".
    std::optional<MenuShortcut> shortcut; ///< "AXMenuItemCmdChar" and "AXMenuItemCmdModifiers".
    std::vector<std::size_t> children;    ///< "AXChildren", as positions in the tree.
};

/// The attributes of every node, at the node's position.
///
/// - A title is the name up to a TAB, without white space at its ends (some programs pad their names).
/// - Left out of the children: separators, also those with a name (sections), tear-offs, hidden items, leaves
///   without a title (unused slots of lists of recent files), and whatever is no part of a menu.
/// - Hidden in GTK is what is not "visible", unless nothing is, because then the application does not tell
///   (LibreOffice); in Qt what is neither sensitive nor implements Component. Elsewhere nothing tells.
/// - Enabled is what is sensitive below ancestors that all are: an item below a disabled menu would run
///   although the user cannot reach it.
std::vector<AtspiAttributes> atspiAttributes(const AtspiMenuTree& tree);

/// The titles from the top-level menu to this node, untitled nodes left out.
std::vector<Text> atspiMenuPath(const AtspiMenuTree& tree, const std::vector<AtspiAttributes>& attributes,
                                std::size_t node);

} // namespace tovrel
