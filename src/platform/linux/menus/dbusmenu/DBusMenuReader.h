#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/linux/dbus/DBus.h"
#include "platform/linux/menus/source/MenuReadLimits.h"
#include "platform/linux/menus/source/MenuReading.h"

namespace tovrel {

/// Where an application serves a menu bar as com.canonical.dbusmenu.
struct DBusMenuAddress {
    std::string busName; ///< Unique name.
    std::string path;
};

/// An item of a com.canonical.dbusmenu, pressed by telling the application of a click.
struct DBusMenuItem {
    std::shared_ptr<const DBusMenuAddress> menu; ///< Of all its items the same; never null.
    std::int32_t identifier = 0;
};

/// What the desktop's registrar of application menus knows of a window; absent where no registrar runs. It is
/// never started by this question: applications that see one hide their own menu bars.
std::optional<DBusMenuAddress> registeredMenu(DBusConnection& connection, std::uint32_t window,
                                              const MenuReadLimits& limits, SteadyTime started);

/// Reads the menu bar: all of it with one call, then the menus that are filled only when they open, told one
/// after the other that they are about to. The `item` of each is its DBusMenuItem. All of it ends within the
/// limits; `started` is when the caller began, which the total time counts from.
MenuReading readDBusMenuBar(DBusConnection& connection, const DBusMenuAddress& address,
                            const MenuReadLimits& limits, SteadyTime started);

} // namespace tovrel
