#pragma once

#include <chrono>
#include <string>

#include "platform/linux/DBus.h"

namespace tovrel {

enum class AtspiPressResult {
    /// Delivered to the application's queue, and not refused in the time waited. No proof of an effect: GTK
    /// and Qt accept presses of disabled items too, and do nothing.
    accepted,
    refused,  ///< The application answered that it does not do it, or is no longer there.
    itemGone, ///< The application no longer knows this object; it may have rebuilt its menus.
};

/// How long an early refusal is waited for. Without a dialog the answer takes 0.2 to 3 ms; a Qt dialog delays
/// it until the dialog is closed, so that no answer is as good as one.
inline constexpr std::chrono::milliseconds pressPatience{100};

/// Runs the first action (org.a11y.atspi.Action.DoAction 0) of an object.
///
/// Before it returns `accepted` the bus itself has confirmed to have passed the request on, so that the
/// caller may exit at once. A bus that does not confirm within a second means `refused`.
AtspiPressResult pressAtspiObject(DBusConnection& connection, const std::string& busName,
                                  const std::string& path,
                                  std::chrono::milliseconds patience = pressPatience);

} // namespace tovrel
