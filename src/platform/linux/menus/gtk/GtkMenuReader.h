#pragma once

#include "platform/ApplicationWindow.h"
#include "platform/linux/dbus/DBus.h"
#include "platform/linux/menus/source/MenuReadLimits.h"
#include "platform/linux/menus/source/MenuReading.h"

namespace tovrel {

/// Reads the menu bar that a window publishes as org.gtk.Menus, with the actions of org.gtk.Actions, from the
/// session bus. That takes one call for each level of menus and two for the actions, all within the limits;
/// the total time counts from `started`, when the caller began.
///
/// The tree is empty when the application publishes nothing valid, or did not answer everything: nothing is
/// known of an item without its action.
MenuReading readGtkMenuBar(DBusConnection& connection, const GtkMenuAddress& address,
                           const MenuReadLimits& limits, SteadyTime started);

} // namespace tovrel
