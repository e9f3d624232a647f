#include "platform/linux/menus/dbusmenu/DBusMenuSource.h"

#include <any>
#include <optional>

#include "platform/linux/menus/dbusmenu/DBusMenuReader.h"

namespace tovrel {

MenuReading DBusMenuSource::read(const MenuReadRequest& request) {
    const auto window = request.windows.empty() ? std::nullopt : request.windows.front().registrarIdentifier;
    DBusConnection* connection = window ? bus_->connection() : nullptr;
    const auto menu = connection == nullptr
                          ? std::nullopt
                          : registeredMenu(*connection, *window, request.limits, request.started);
    connection = menu ? bus_->connection() : nullptr;
    if (connection == nullptr) {
        return emptyReading();
    }
    MenuReading reading = readDBusMenuBar(*connection, *menu, request.limits, request.started);
    if (leavesCallsBehind(reading.report.outcome)) {
        bus_->disconnect();
    }
    return reading;
}

PressResult DBusMenuSource::press(const MenuItem& item) {
    const auto* clicked = std::any_cast<DBusMenuItem>(&item);
    DBusConnection* connection = clicked == nullptr ? nullptr : bus_->connection();
    if (connection == nullptr) {
        return PressResult::refused;
    }
    const DBusMessage press = connection->methodCall(
        clicked->menu->busName.c_str(), clicked->menu->path.c_str(), "com.canonical.dbusmenu", "Event");
    constexpr std::uint32_t now = 0; // the protocol's value for an unknown time
    const bool isBuilt = press && sd_bus_message_append(press.handle(), "isvu", clicked->identifier,
                                                        "clicked", "i", 0, now) >= 0;
    return isBuilt ? deliverPress(*connection, press) : PressResult::refused;
}

} // namespace tovrel
