#pragma once

#include <any>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/linux/menus/source/MenuShortcut.h"
#include "support/Text.h"

namespace tovrel {

/// What the source of an entry presses it by. Only that source knows the type and makes anything of the
/// value.
using MenuItem = std::any;

/// One entry of a menu as the application publishes it.
struct MenuNode {
    Text title;                           ///< "AXTitle"; empty for a container between a menu and its items.
    std::optional<bool> isEnabled;        ///< "AXEnabled"; absent when it was not told.
    std::optional<bool> isChecked;        ///< "AXMenuItemMarkChar"; absent when it cannot be told.
    std::optional<MenuShortcut> shortcut; ///< "AXMenuItemCmdChar" and "AXMenuItemCmdModifiers".
    bool isMenu = false;                  ///< It has entries, or would have if they were known.
    std::size_t parent = 0;
    std::vector<std::size_t> children; ///< "AXChildren", as positions in the tree, each after the node's own.
    MenuItem item;                     ///< Empty for what cannot be pressed, such as a menu of org.gtk.Menus.
    std::size_t source = 0; ///< Place of the item's source among the sources; see ApplicationMenus.
};

/// An application's menu bar as it was at one time, the bar itself first; empty when there is none. Nodes
/// that are nobody's children are not part of it.
using MenuTree = std::vector<MenuNode>;

/// The title in a label as GTK and com.canonical.dbusmenu write it: one underscore marks the mnemonic, two
/// are one that is shown.
Text titleOfLabel(std::string_view label);

/// The titles from the top-level menu to this node, untitled nodes left out.
std::vector<Text> menuPath(const MenuTree& tree, std::size_t node);

/// The node of `now` that has the same titles as a node of `before`. When several have them, the one at the
/// same place among them; absent when they are not as many as before, since then nobody knows which is which,
/// and for a node without a title.
std::optional<std::size_t> counterpart(const MenuTree& before, std::size_t node, const MenuTree& now);

/// Whether a menu of it has no entries.
bool hasEmptyMenu(const MenuTree& tree);

/// Whether it is made of menus none of which has entries.
bool hasOnlyEmptyMenus(const MenuTree& tree);

} // namespace tovrel
