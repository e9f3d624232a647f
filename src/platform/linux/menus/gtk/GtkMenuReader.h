#pragma once

#include "platform/ApplicationWindow.h"
#include "platform/linux/dbus/DBus.h"
#include "platform/linux/menus/source/MenuReadLimits.h"
#include "platform/linux/menus/source/MenuReading.h"

namespace tovrel {

/// Reads the menu bar that a window publishes as org.gtk.Menus, with the actions of org.gtk.Actions, from the
/// session bus. That takes one call for each level of menus and two for the actions, all of which end within
/// the limits; `started` is when the caller began, which the total time counts from.
///
/// The tree is empty when nothing is there that makes sense, and when the application did not answer to the
/// end: without its action nothing is known of an item.
MenuReading readGtkMenuBar(DBusConnection& connection, const GtkMenuAddress& address,
                           const MenuReadLimits& limits, SteadyTime started);

} // namespace tovrel
