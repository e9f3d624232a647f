#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/linux/dbus/AnswerBudget.h"
#include "platform/linux/dbus/DBus.h"
#include "platform/linux/dbus/DBusValue.h"
#include "platform/linux/menus/source/MenuReadLimits.h"
#include "platform/linux/menus/source/MenuTree.h"

namespace tovrel {

/// An action that a window publishes as org.gtk.Actions; a press activates it.
struct GtkAction {
    std::string busName;    ///< Unique name of the application.
    std::string objectPath; ///< The path of the group of actions.
    std::string name;       ///< The name in the group; empty without an action, and then a press is refused.
    std::optional<DBusValue> target; ///< The parameter it is activated with.
};

/// A menu of org.gtk.Menus: the number of its group, which is fetched as a whole, and its own number in the
/// group.
using GtkMenuReference = std::pair<std::uint32_t, std::uint32_t>;

/// An entry of such a menu, with the attributes and links of GMenuModel.
struct GtkMenuEntry {
    std::string label;                       ///< With underscores before mnemonics.
    std::string action;                      ///< With its prefix: "win.save"; empty for an entry without one.
    std::optional<DBusValue> target;         ///< The parameter for the action.
    bool lacksTarget = false;                ///< It has a target that is too large to be kept.
    std::string accelerator;                 ///< "accel": "<Primary>s"; most applications keep it elsewhere.
    std::string hiddenWhen;                  ///< "hidden-when": "action-missing" or "action-disabled".
    std::string actionNamespace;             ///< A prefix for the actions of the linked menu.
    std::optional<GtkMenuReference> section; ///< The section's entries replace this one.
    std::optional<GtkMenuReference> submenu;
    std::string submenuAction; ///< "submenu-action": an action for the submenu's opening and closing.
};

struct GtkMenuModel {
    std::map<GtkMenuReference, std::vector<GtkMenuEntry>> menus;
    /// The entries added so far, including repeated ones of a menu that is sent again.
    std::size_t entries = 0;
};

/// Adds the menus in an answer of org.gtk.Menus.Start, and the groups that they link to to `linked`. Returns
/// false when the limits cut something off.
bool readGtkMenus(DBusMessage& answer, const MenuReadLimits& limits, AnswerBudget& budget,
                  GtkMenuModel& model, std::set<std::uint32_t>& linked);

/// The description of an action by org.gtk.Actions.
struct GtkActionDescription {
    bool isEnabled = false;
    std::string parameterType; ///< Signature of the parameter to activate it with; empty without one.
    std::optional<DBusValue> state;
};

/// A group of actions, whose names in menus begin with the prefix.
struct GtkActionGroup {
    std::string prefix;  ///< "app." or "win."
    std::string busName; ///< Unique name of the application.
    std::string objectPath;
    std::map<std::string, GtkActionDescription, std::less<>> actions;
};

/// The actions in an answer of org.gtk.Actions.DescribeAll, by their names without the prefix.
std::map<std::string, GtkActionDescription, std::less<>>
readGtkActions(DBusMessage& answer, const MenuReadLimits& limits, AnswerBudget& budget);

/// Builds the menu bar (group 0, menu 0) as GTK would show it: sections are joined to their menu, mnemonic
/// marks are removed, and entries are enabled and checked as their actions are. The `item` of an entry is its
/// GtkAction. An entry is disabled if its action is unknown, or its target is too large or not of the type
/// that the action takes. An entry is checked if its action's state is true, or, for one of several choices,
/// equal to the entry's target.
///
/// A submenu that occurs twice in one menu, with the same action for its opening, counts once: LibreOffice
/// publishes its whole bar in two forms.
///
/// The tree grows level by level; `isTooLarge` is set when the limits cut something off.
MenuTree gtkMenuTree(const GtkMenuModel& model, const std::vector<GtkActionGroup>& groups,
                     const MenuReadLimits& limits, bool& isTooLarge);

} // namespace tovrel
