#include "platform/linux/menus/source/MenuPress.h"

#include <chrono>
#include <optional>
#include <string_view>

namespace tovrel {
namespace {

constexpr std::chrono::milliseconds deliveryPatience{1000};
/// How long to wait for an early refusal. Without a dialog the answer takes 0.2 to 3 ms.
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
    // The bus reports this for an application that got the request and left without an answer, as after Quit.
    return error == SD_BUS_ERROR_NO_REPLY ? PressResult::accepted : PressResult::refused;
}

} // namespace

PressResult deliverPress(DBusConnection& connection, const DBusMessage& press) {
    if (!press) {
        return PressResult::refused;
    }
    // The bus handles a connection's messages in order, so its answer to a question sent after the press
    // proves that it has passed the press on.
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

} // namespace tovrel
