#pragma once

#include <any>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/linux/menus/source/MenuShortcut.h"
#include "support/Text.h"

namespace tovrel {

/// The value with which an entry's source presses it. Only that source knows its type.
using MenuItem = std::any;

/// An entry of a menu as the application publishes it.
struct MenuNode {
    Text title;                           ///< "AXTitle"; empty for a container between a menu and its items.
    std::optional<bool> isEnabled;        ///< "AXEnabled"; absent when it is not known.
    std::optional<bool> isChecked;        ///< "AXMenuItemMarkChar"; absent when it is not known.
    std::optional<MenuShortcut> shortcut; ///< "AXMenuItemCmdChar" and "AXMenuItemCmdModifiers".
    bool isMenu = false;                  ///< It has entries, or would have if they were known.
    std::size_t parent = 0;
    std::vector<std::size_t> children; ///< "AXChildren", as positions in the tree, each after the node's own.
    MenuItem item;          ///< Empty for an entry that cannot be pressed, such as a menu of org.gtk.Menus.
    std::size_t source = 0; ///< The place of the item's source among the sources; see ApplicationMenus.
};

/// An application's menu bar at one moment, the bar itself first; empty when there is none. Nodes that are
/// not children of any node are not part of it.
using MenuTree = std::vector<MenuNode>;

/// The title in a label of GTK or com.canonical.dbusmenu: one underscore marks the mnemonic, two stand for a
/// visible one.
Text titleOfLabel(std::string_view label);

/// The titles from the top-level menu to this node, without untitled nodes.
std::vector<Text> menuPath(const MenuTree& tree, std::size_t node);

/// The node of `now` that has the same titles as a node of `before`. If several nodes have these titles, it
/// is the one at the same place among them. Absent for a node without a title, and when the number of such
/// nodes has changed, because then nobody knows which is which.
std::optional<std::size_t> counterpart(const MenuTree& before, std::size_t node, const MenuTree& now);

/// Whether any menu of the tree has no entries.
bool hasEmptyMenu(const MenuTree& tree);

/// Whether the bar has menus, but none of them has entries.
bool hasOnlyEmptyMenus(const MenuTree& tree);

} // namespace tovrel
