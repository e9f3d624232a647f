#pragma once

#include <string>

#include "platform/linux/dbus/DBus.h"
#include "platform/linux/menus/source/MenuTree.h"

namespace tovrel {

enum class PressResult {
    /// Delivered to the application's queue, and not refused in the time waited. No proof of an effect: GTK
    /// and Qt accept presses of disabled items too, and do nothing.
    accepted,
    refused,  ///< The application answered that it does not do it, or is no longer there.
    itemGone, ///< The application no longer knows this object; it may have rebuilt its menus.
};

/// How an item is pressed, by where it comes from. Nothing here waits for the command to finish: a dialog may
/// keep the answer back until it is closed, so that no answer counts as `accepted`.
///
/// Before any of these returns `accepted` the bus itself has confirmed to have passed the call on, so that
/// the caller may exit at once. A bus that does not confirm within a second means `refused`.

/// Runs the first action (org.a11y.atspi.Action.DoAction 0) of the object.
PressResult pressItem(DBusConnection& connection, const AtspiObject& object);

/// Activates the action (org.gtk.Actions.Activate) of the application that owns `busName`.
PressResult pressItem(DBusConnection& connection, const std::string& busName, const GtkAction& action);

/// Tells the menu at `path` of a click on the item (com.canonical.dbusmenu.Event).
PressResult pressItem(DBusConnection& connection, const std::string& busName, const std::string& path,
                      const DBusMenuItem& item);

} // namespace tovrel
