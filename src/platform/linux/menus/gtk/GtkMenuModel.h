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

/// An action that a window publishes as org.gtk.Actions, pressed by activating it.
struct GtkAction {
    std::string busName;             ///< Unique name of the application.
    std::string objectPath;          ///< Of the group of actions.
    std::string name;                ///< In the group. Empty: there is none, and a press is refused.
    std::optional<DBusValue> target; ///< The parameter it is activated with.
};

/// A menu of org.gtk.Menus: the number of its group, which is fetched as a whole, and its own in the group.
using GtkMenuReference = std::pair<std::uint32_t, std::uint32_t>;

/// An entry of such a menu, by the attributes and links of GMenuModel.
struct GtkMenuEntry {
    std::string label;                       ///< With underscores before mnemonics.
    std::string action;                      ///< With its prefix: "win.save"; empty for an entry without one.
    std::optional<DBusValue> target;         ///< What the action is activated with.
    bool lacksTarget = false;                ///< It has one, which is too large to be kept.
    std::string accelerator;                 ///< "accel": "<Primary>s"; most applications keep it elsewhere.
    std::string hiddenWhen;                  ///< "hidden-when": "action-missing" or "action-disabled".
    std::string actionNamespace;             ///< Put before the actions of the linked menu.
    std::optional<GtkMenuReference> section; ///< Its entries stand in place of this one.
    std::optional<GtkMenuReference> submenu;
    std::string submenuAction; ///< "submenu-action": told of the submenu's opening and closing.
};

struct GtkMenuModel {
    std::map<GtkMenuReference, std::vector<GtkMenuEntry>> menus;
    std::size_t entries = 0; ///< That were taken in so far, those of a menu told again included.
};

/// Adds the menus in an answer of org.gtk.Menus.Start, and to `linked` the groups they lead to. False when
/// that is not everything because of the limits.
bool readGtkMenus(DBusMessage& answer, const MenuReadLimits& limits, AnswerBudget& budget,
                  GtkMenuModel& model, std::set<std::uint32_t>& linked);

/// An action as org.gtk.Actions describes it.
struct GtkActionDescription {
    bool isEnabled = false;
    std::string parameterType; ///< Signature of what it must be activated with; empty for nothing.
    std::optional<DBusValue> state;
};

/// A group of actions: those whose names in menus begin with the prefix.
struct GtkActionGroup {
    std::string prefix;  ///< "app." or "win."
    std::string busName; ///< Unique name of the application.
    std::string objectPath;
    std::map<std::string, GtkActionDescription, std::less<>> actions;
};

/// The actions in an answer of org.gtk.Actions.DescribeAll, by their names without prefix.
std::map<std::string, GtkActionDescription, std::less<>>
readGtkActions(DBusMessage& answer, const MenuReadLimits& limits, AnswerBudget& budget);

/// The menu bar (group 0, menu 0) as GTK would show it: sections joined to the menu they stand in, mnemonic
/// marks taken off, entries enabled and checked as their actions are. The `item` of an entry is its
/// GtkAction. An entry without a known action is disabled, as is one whose target is not of the type that the
/// action takes or is too large. Checked is an action whose state is true, or, for one of several choices,
/// equal to the entry's target.
///
/// A submenu that stands twice in one menu, with one action for its opening, is one: LibreOffice publishes
/// its whole bar in two forms.
///
/// Built level by level; `isTooLarge` is set when the limits cut something off.
MenuTree gtkMenuTree(const GtkMenuModel& model, const std::vector<GtkActionGroup>& groups,
                     const MenuReadLimits& limits, bool& isTooLarge);

} // namespace tovrel
