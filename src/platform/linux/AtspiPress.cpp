#include "platform/linux/AtspiPress.h"

#include <optional>
#include <string_view>

namespace tovrel {
namespace {

constexpr std::chrono::milliseconds deliveryPatience{1000};

AtspiPressResult resultIn(DBusMessage& answer) {
    const std::string_view error = answer.errorName();
    if (error.empty()) {
        return answer.readBoolean().value_or(true) ? AtspiPressResult::accepted : AtspiPressResult::refused;
    }
    if (error == SD_BUS_ERROR_UNKNOWN_OBJECT || error == SD_BUS_ERROR_UNKNOWN_METHOD ||
        error == SD_BUS_ERROR_UNKNOWN_INTERFACE) {
        return AtspiPressResult::itemGone;
    }
    // The bus says this of an application that had the request and left without an answer, as Quit does.
    return error == SD_BUS_ERROR_NO_REPLY ? AtspiPressResult::accepted : AtspiPressResult::refused;
}

} // namespace

AtspiPressResult pressAtspiObject(DBusConnection& connection, const std::string& busName,
                                  const std::string& path, std::chrono::milliseconds patience) {
    const DBusMessage press =
        connection.methodCall(busName.c_str(), path.c_str(), "org.a11y.atspi.Action", "DoAction");
    if (!press || sd_bus_message_append(press.handle(), "i", 0) < 0) {
        return AtspiPressResult::refused;
    }
    // The bus works through one connection's messages in order: its answer to a question sent behind the
    // press says that the press has been passed on.
    const auto pressed = connection.send(press);
    const auto confirmation = connection.send(connection.methodCall(
        "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "GetId"));
    if (!pressed || !confirmation) {
        return AtspiPressResult::refused;
    }
    const SteadyTime now = std::chrono::steady_clock::now();
    bool isDelivered = false;
    std::optional<AtspiPressResult> result;
    while (!isDelivered || !result) {
        auto answer = connection.receive(now + (isDelivered ? patience : deliveryPatience));
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
        return AtspiPressResult::refused;
    }
    return result.value_or(AtspiPressResult::accepted);
}

} // namespace tovrel
