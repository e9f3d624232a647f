#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/linux/dbus/DBus.h"
#include "platform/linux/menus/source/MenuReadLimits.h"
#include "platform/linux/menus/source/MenuReading.h"

namespace tovrel {

/// The place where an application serves a menu bar as com.canonical.dbusmenu.
struct DBusMenuAddress {
    std::string busName; ///< Unique name.
    std::string path;
};

/// An item of a com.canonical.dbusmenu; a press tells the application of a click.
struct DBusMenuItem {
    std::shared_ptr<const DBusMenuAddress> menu; ///< Shared by all items of the menu; never null.
    std::int32_t identifier = 0;
};

/// The menu bar that the desktop's registrar of application menus knows for a window; absent where no
/// registrar runs. The question never starts one, because applications that see a registrar hide their own
/// menu bars.
std::optional<DBusMenuAddress> registeredMenu(DBusConnection& connection, std::uint32_t window,
                                              const MenuReadLimits& limits, SteadyTime started);

/// Reads the menu bar with one call, then opens, one after the other, the menus that are filled only when
/// they open. The `item` of each entry is its DBusMenuItem. All of it ends within the limits; the total time
/// counts from `started`, when the caller began.
MenuReading readDBusMenuBar(DBusConnection& connection, const DBusMenuAddress& address,
                            const MenuReadLimits& limits, SteadyTime started);

} // namespace tovrel
