#pragma once

#include "platform/linux/dbus/DBus.h"

namespace tovrel {

enum class PressResult {
    /// The press is in the application's queue and was not refused during the wait. This does not prove an
    /// effect: GTK and Qt accept presses of disabled items too, and do nothing.
    accepted,
    refused,  ///< The application refused the press or is gone.
    itemGone, ///< The application no longer knows this object; it may have rebuilt its menus.
};

/// Sends the call that is a press; an empty call is `refused`. Does not wait for the command to finish: an
/// open dialog may delay the answer, so no answer counts as `accepted`.
///
/// Returns `accepted` only after the bus has confirmed that it has passed the call on, so the caller may exit
/// at once. Returns `refused` if the bus does not confirm within a second.
PressResult deliverPress(DBusConnection& connection, const DBusMessage& press);

} // namespace tovrel
