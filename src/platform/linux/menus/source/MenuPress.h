#pragma once

#include "platform/linux/dbus/DBus.h"

namespace tovrel {

enum class PressResult {
    /// Delivered to the application's queue, and not refused in the time waited. No proof of an effect: GTK
    /// and Qt accept presses of disabled items too, and do nothing.
    accepted,
    refused,  ///< The application answered that it does not do it, or is no longer there.
    itemGone, ///< The application no longer knows this object; it may have rebuilt its menus.
};

/// Sends the call that is a press; `refused` for an empty one. It does not wait for the command to finish: a
/// dialog may keep the answer back until it is closed, so that no answer counts as `accepted`.
///
/// Before `accepted` is returned the bus itself has confirmed to have passed the call on, so that the caller
/// may exit at once. A bus that does not confirm within a second means `refused`.
PressResult deliverPress(DBusConnection& connection, const DBusMessage& press);

} // namespace tovrel
