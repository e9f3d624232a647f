#include "platform/linux/menus/MenuPress.h"

#include <chrono>
#include <optional>
#include <string_view>

namespace tovrel {
namespace {

constexpr std::chrono::milliseconds deliveryPatience{1000};
/// How long an early refusal is waited for. Without a dialog the answer takes 0.2 to 3 ms.
constexpr std::chrono::milliseconds refusalPatience{100};

PressResult resultIn(DBusMessage& answer) {
    const std::string_view error = answer.errorName();
    if (error.empty()) {
        return answer.readBoolean().value_or(true) ? PressResult::accepted : PressResult::refused;
    }
    if (error == SD_BUS_ERROR_UNKNOWN_OBJECT || error == SD_BUS_ERROR_UNKNOWN_METHOD ||
        error == SD_BUS_ERROR_UNKNOWN_INTERFACE) {
        return PressResult::itemGone;
    }
    // The bus says this of an application that had the request and left without an answer, as Quit does.
    return error == SD_BUS_ERROR_NO_REPLY ? PressResult::accepted : PressResult::refused;
}

PressResult deliver(DBusConnection& connection, const DBusMessage& press) {
    // The bus works through one connection's messages in order: its answer to a question sent behind the
    // press says that the press has been passed on.
    const auto pressed = connection.send(press);
    const auto confirmation = connection.send(connection.busCall("GetId"));
    if (!pressed || !confirmation) {
        return PressResult::refused;
    }
    const SteadyTime now = std::chrono::steady_clock::now();
    bool isDelivered = false;
    std::optional<PressResult> result;
    while (!isDelivered || !result) {
        auto answer = connection.receive(now + (isDelivered ? refusalPatience : deliveryPatience));
        if (!answer) {
            break;
        }
        if (answer->answeredCall() == pressed) {
            result = resultIn(*answer);
        } else if (answer->answeredCall() == confirmation) {
            isDelivered = true;
        }
    }
    if (!isDelivered || !connection.isOpen()) {
        return PressResult::refused;
    }
    return result.value_or(PressResult::accepted);
}

} // namespace

PressResult pressItem(DBusConnection& connection, const AtspiObject& object) {
    const DBusMessage press = connection.methodCall(object.busName.c_str(), object.path.c_str(),
                                                    "org.a11y.atspi.Action", "DoAction");
    return press && sd_bus_message_append(press.handle(), "i", 0) >= 0 ? deliver(connection, press)
                                                                       : PressResult::refused;
}

PressResult pressItem(DBusConnection& connection, const std::string& busName, const GtkAction& action) {
    const DBusMessage press =
        connection.methodCall(busName.c_str(), action.objectPath.c_str(), "org.gtk.Actions", "Activate");
    if (action.name.empty() || !press) {
        return PressResult::refused;
    }
    sd_bus_message* message = press.handle();
    const bool isBuilt = sd_bus_message_append(message, "s", action.name.c_str()) >= 0 &&
                         sd_bus_message_open_container(message, SD_BUS_TYPE_ARRAY, "v") >= 0 &&
                         (!action.target || appendVariant(message, *action.target)) &&
                         sd_bus_message_close_container(message) >= 0 &&
                         sd_bus_message_append(message, "a{sv}", 0) >= 0;
    return isBuilt ? deliver(connection, press) : PressResult::refused;
}

PressResult pressItem(DBusConnection& connection, const std::string& busName, const std::string& path,
                      const DBusMenuItem& item) {
    const DBusMessage press =
        connection.methodCall(busName.c_str(), path.c_str(), "com.canonical.dbusmenu", "Event");
    constexpr std::uint32_t now = 0; // as the protocol puts a time that is not known
    return press &&
                   sd_bus_message_append(press.handle(), "isvu", item.identifier, "clicked", "i", 0, now) >= 0
               ? deliver(connection, press)
               : PressResult::refused;
}

} // namespace tovrel
