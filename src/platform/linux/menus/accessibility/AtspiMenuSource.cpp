#include "platform/linux/menus/accessibility/AtspiMenuSource.h"

#include <any>
#include <optional>
#include <utility>
#include <vector>

#include "platform/linux/menus/accessibility/AtspiMenuReader.h"
#include "platform/linux/menus/accessibility/AtspiMenus.h"

namespace tovrel {

MenuReading AtspiMenuSource::read(const MenuReadRequest& request) {
    MenuTree nothingPublished;
    bool hasAddedAccelerators = false;
    return readOrAdd(request, nothingPublished, hasAddedAccelerators);
}

AtspiMenuSource::Additions AtspiMenuSource::addTo(MenuTree& published, const MenuReadRequest& request) {
    Additions additions;
    additions.report = readOrAdd(request, published, additions.hasAddedAccelerators).report;
    return additions;
}

MenuReading AtspiMenuSource::readOrAdd(const MenuReadRequest& request, MenuTree& published,
                                       bool& hasAddedAccelerators) {
    MenuReading reading;
    auto applications = bus_->applications();
    reading.report.outcome =
        applications ? MenuReadOutcome::notRegistered : MenuReadOutcome::noAccessibilityBus;
    const auto title = request.windows.empty() ? std::nullopt : std::optional(request.windows.front().title);
    // A process with two toolkits has two connections.
    for (const AtspiApplication& application :
         std::move(applications).value_or(std::vector<AtspiApplication>())) {
        DBusConnection* connection = bus_->connection();
        if (application.processIdentifier != request.processIdentifier || connection == nullptr) {
            continue;
        }
        const AtspiMenuReading answered = readAtspiMenus(*connection, application.busName, application.root,
                                                         title, published, request.limits, request.started);
        hasAddedAccelerators = hasAddedAccelerators || answered.hasAddedAccelerators;
        reading = {menuTreeOf(answered.tree), answered.report};
        if (answered.tree.toolkit == AtspiToolkit::gecko &&
            reading.report.outcome == MenuReadOutcome::completed && hasOnlyEmptyMenus(reading.tree)) {
            reading.report.outcome = MenuReadOutcome::menusUnfilled;
        }
        if (leavesCallsBehind(reading.report.outcome)) {
            bus_->disconnect();
        }
        if (!reading.tree.empty() || isUnreachable(reading.report.outcome)) {
            break;
        }
    }
    return reading;
}

PressResult AtspiMenuSource::press(const MenuItem& item) {
    const auto* object = std::any_cast<AtspiObject>(&item);
    DBusConnection* connection = object == nullptr ? nullptr : bus_->connection();
    if (connection == nullptr) {
        return PressResult::refused;
    }
    const DBusMessage press = connection->methodCall(object->busName.c_str(), object->path.c_str(),
                                                     "org.a11y.atspi.Action", "DoAction");
    return press && sd_bus_message_append(press.handle(), "i", 0) >= 0 ? deliverPress(*connection, press)
                                                                       : PressResult::refused;
}

} // namespace tovrel
