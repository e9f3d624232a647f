#include "platform/linux/menus/gtk/GtkMenuSource.h"

#include <algorithm>
#include <any>

#include "platform/linux/menus/gtk/GtkMenuModel.h"
#include "platform/linux/menus/gtk/GtkMenuReader.h"

namespace tovrel {

const ApplicationWindow* publisherOf(const std::vector<ApplicationWindow>& windows) {
    const auto window = std::find_if(windows.begin(), windows.end(),
                                     [](const ApplicationWindow& candidate) { return candidate.gtkMenus; });
    return window == windows.end() ? nullptr : &*window;
}

MenuReading GtkMenuSource::read(const MenuReadRequest& request) {
    const ApplicationWindow* publisher = publisherOf(request.windows);
    DBusConnection* connection = publisher == nullptr ? nullptr : bus_->connection();
    if (connection == nullptr) {
        return emptyReading();
    }
    MenuReading reading = readGtkMenuBar(*connection, *publisher->gtkMenus, request.limits, request.started);
    if (leavesCallsBehind(reading.report.outcome)) {
        bus_->disconnect();
    }
    return reading;
}

PressResult GtkMenuSource::press(const MenuItem& item) {
    const auto* action = std::any_cast<GtkAction>(&item);
    DBusConnection* connection = action == nullptr || action->name.empty() ? nullptr : bus_->connection();
    if (connection == nullptr) {
        return PressResult::refused;
    }
    const DBusMessage press = connection->methodCall(action->busName.c_str(), action->objectPath.c_str(),
                                                     "org.gtk.Actions", "Activate");
    sd_bus_message* message = press.handle();
    const bool isBuilt = press && sd_bus_message_append(message, "s", action->name.c_str()) >= 0 &&
                         sd_bus_message_open_container(message, SD_BUS_TYPE_ARRAY, "v") >= 0 &&
                         (!action->target || appendVariant(message, *action->target)) &&
                         sd_bus_message_close_container(message) >= 0 &&
                         sd_bus_message_append(message, "a{sv}", 0) >= 0;
    return isBuilt ? deliverPress(*connection, press) : PressResult::refused;
}

} // namespace tovrel
