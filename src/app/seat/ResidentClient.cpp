#include "app/seat/ResidentClient.h"

#include <chrono>
#include <optional>
#include <string_view>
#include <utility>

#include "app/seat/DBusNames.h"
#include "app/terminal/Failure.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

constexpr auto patience = 5s;

class NotRunning : public Failure {
  public:
    NotRunning() : Failure("tovrel is not running") {}
};

/// Whether the program serves another display: one bus can serve several, each with a program of its own.
bool isOfAnotherDisplay(const ResidentStatus& status) {
    const std::string own = displayName();
    return !status.display.empty() && !own.empty() && status.display != own;
}

/// The unique bus name of the program that owns the service name. With `mayStart` the bus starts the program
/// if it does not run, for users who ask it to show something.
std::string ownerOnBus(DBusConnection& bus, bool mayStart) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    auto owner = bus.owner(dbus_names::service, deadline);
    if (!owner && mayStart && bus.startService(dbus_names::service, deadline)) {
        owner = bus.owner(dbus_names::service, deadline);
    }
    if (!owner) {
        throw NotRunning();
    }
    return *std::move(owner);
}

DBusMessage answered(DBusConnection& connection, const DBusMessage& call) {
    if (!call) {
        throw Failure("out of memory");
    }
    auto answer = connection.call(call, std::chrono::steady_clock::now() + patience);
    if (!answer) {
        throw Failure("the running tovrel does not answer");
    }
    const std::string_view error = answer->errorName();
    if (error == "org.freedesktop.DBus.Error.ServiceUnknown" ||
        error == "org.freedesktop.DBus.Error.NameHasNoOwner") {
        throw NotRunning();
    }
    if (!error.empty()) {
        throw Failure("the running tovrel answered " + std::string(error));
    }
    return *std::move(answer);
}

template <typename Value>
void readVariant(DBusMessage& message, const char* type, Value& value) {
    sd_bus_message* handle = message.handle();
    if (sd_bus_message_enter_container(handle, SD_BUS_TYPE_VARIANT, type) > 0) {
        sd_bus_message_read_basic(handle, *type, &value);
        sd_bus_message_exit_container(handle);
    } else {
        sd_bus_message_skip(handle, "v");
    }
}

void readText(DBusMessage& message, std::string& text) {
    const char* value = nullptr;
    readVariant(message, "s", value);
    text = value == nullptr ? "" : value;
}

void readFlag(DBusMessage& message, bool& flag) {
    int value = 0;
    readVariant(message, "b", value);
    flag = value != 0;
}

void readProperty(DBusMessage& message, std::string_view name, ResidentStatus& status) {
    if (name == "Version") {
        readText(message, status.version);
    } else if (name == "ProcessIdentifier") {
        readVariant(message, "u", status.processIdentifier);
    } else if (name == "PaletteVisible") {
        readFlag(message, status.isPaletteVisible);
    } else if (name == "AccessibilityTrusted") {
        readFlag(message, status.isAccessibilityTrusted);
    } else if (name == "Shortcut") {
        readText(message, status.shortcut);
    } else if (name == "Display") {
        readText(message, status.display);
    } else if (name == "ShortcutProblem") {
        readText(message, status.shortcutProblem);
    } else if (name == "Target") {
        readText(message, status.target);
    } else if (name == "UnstoredChange") {
        readText(message, status.unstoredChange);
    } else {
        sd_bus_message_skip(message.handle(), "v");
    }
}

} // namespace

ResidentClient::ResidentClient() : ResidentClient(ofThisDisplay()) {}

std::optional<ResidentClient> ResidentClient::ofSeat(const ResidentSeat& seat) {
    auto direct = DBusConnection::openPeer(seat.address());
    return direct ? std::optional(ResidentClient(*std::move(direct), Road::direct)) : std::nullopt;
}

ResidentClient ResidentClient::ofSessionBus() {
    auto bus = DBusConnection::openSessionBus();
    if (!bus) {
        throw Failure("there is no session bus to find the running tovrel on");
    }
    return {*std::move(bus), Road::bus};
}

ResidentClient ResidentClient::ofThisDisplay() {
    const auto seat = ResidentSeat::ofEnvironment();
    auto direct = seat ? ofSeat(*seat) : std::nullopt;
    if (direct) {
        return *std::move(direct);
    }
    ResidentClient client = ofSessionBus();
    try {
        if (!isOfAnotherDisplay(client.status())) {
            return client;
        }
    } catch (const NotRunning&) {
        return client; // The bus may be able to start it.
    }
    throw Failure("tovrel is not running on this display");
}

void ResidentClient::toggle() {
    call("Toggle", true);
}

void ResidentClient::show() {
    call("Show", false);
}

void ResidentClient::settings() {
    call("ShowSettings", true);
}

void ResidentClient::quit() {
    call("Quit", false);
}

ResidentStatus ResidentClient::status() {
    const DBusMessage call = methodCall("org.freedesktop.DBus.Properties", "GetAll", false);
    if (call) {
        sd_bus_message_append(call.handle(), "s", dbus_names::interface);
    }
    DBusMessage answer = answered(connection_, call);
    ResidentStatus status;
    sd_bus_message* handle = answer.handle();
    if (sd_bus_message_enter_container(handle, SD_BUS_TYPE_ARRAY, "{sv}") <= 0) {
        throw Failure("the running tovrel answered what cannot be understood");
    }
    while (sd_bus_message_enter_container(handle, SD_BUS_TYPE_DICT_ENTRY, "sv") > 0) {
        const std::string name(answer.readString().value_or(""));
        readProperty(answer, name, status);
        sd_bus_message_exit_container(handle);
    }
    return status;
}

void ResidentClient::call(const char* member, bool mayStart) {
    answered(connection_, methodCall(dbus_names::interface, member, mayStart));
}

DBusMessage ResidentClient::methodCall(const char* interface, const char* member, bool mayStart) {
    const std::string owner = road_ == Road::bus ? ownerOnBus(connection_, mayStart) : "";
    return connection_.methodCall(road_ == Road::bus ? owner.c_str() : nullptr, dbus_names::objectPath,
                                  interface, member);
}

bool isShownOverSessionBus() {
    try {
        ResidentClient client = ResidentClient::ofSessionBus();
        if (isOfAnotherDisplay(client.status())) {
            return false;
        }
        client.show();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

} // namespace tovrel
