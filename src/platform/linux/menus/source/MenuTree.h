#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/linux/dbus/DBusValue.h"
#include "platform/linux/menus/source/MenuShortcut.h"
#include "support/Text.h"

namespace tovrel {

/// An object on the accessibility bus, pressed by its first action.
struct AtspiObject {
    std::string busName;
    std::string path;
};

/// An action that a window publishes as org.gtk.Actions, pressed by activating it.
struct GtkAction {
    std::string objectPath;          ///< Of the group of actions.
    std::string name;                ///< In the group. Empty: there is none, and a press is refused.
    std::optional<DBusValue> target; ///< The parameter it is activated with.
};

/// An item of a com.canonical.dbusmenu, pressed by telling the application of a click.
struct DBusMenuItem {
    std::int32_t identifier = 0;
};

/// Where a menu entry came from, and how it is pressed.
using MenuItemSource = std::variant<AtspiObject, GtkAction, DBusMenuItem>;

/// One entry of a menu as the application publishes it.
struct MenuNode {
    Text title;                           ///< "AXTitle"; empty for a container between a menu and its items.
    std::optional<bool> isEnabled;        ///< "AXEnabled"; absent when it was not told.
    std::optional<bool> isChecked;        ///< "AXMenuItemMarkChar"; absent when it cannot be told.
    std::optional<MenuShortcut> shortcut; ///< "AXMenuItemCmdChar" and "AXMenuItemCmdModifiers".
    bool isMenu = false;                  ///< It has entries, or would have if they were known.
    std::size_t parent = 0;
    std::vector<std::size_t> children; ///< "AXChildren", as positions in the tree, each after the node's own.
    MenuItemSource source;
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

} // namespace tovrel
