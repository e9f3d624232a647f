#include "app/ResidentClient.h"

#include <chrono>
#include <string_view>
#include <utility>

#include "app/DBusNames.h"
#include "app/Failure.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

constexpr auto patience = 5s;

DBusConnection sessionBus() {
    auto bus = DBusConnection::openSessionBus();
    if (!bus) {
        throw Failure("there is no session bus to find the running tovrel on");
    }
    return *std::move(bus);
}

DBusMessage answered(DBusConnection& bus, const DBusMessage& call, bool mayStart) {
    if (!call) {
        throw Failure("out of memory");
    }
    if (!mayStart) {
        sd_bus_message_set_auto_start(call.handle(), 0);
    }
    auto answer = bus.call(call, std::chrono::steady_clock::now() + patience);
    if (!answer) {
        throw Failure("the running tovrel does not answer");
    }
    const std::string_view error = answer->errorName();
    if (error == "org.freedesktop.DBus.Error.ServiceUnknown" ||
        error == "org.freedesktop.DBus.Error.NameHasNoOwner") {
        throw Failure("tovrel is not running");
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
    } else if (name == "ShortcutProblem") {
        readText(message, status.shortcutProblem);
    } else if (name == "Target") {
        readText(message, status.target);
    } else {
        sd_bus_message_skip(message.handle(), "v");
    }
}

} // namespace

ResidentClient::ResidentClient() : bus_(sessionBus()) {}

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
    const DBusMessage call = bus_.methodCall(dbus_names::service, dbus_names::objectPath,
                                             "org.freedesktop.DBus.Properties", "GetAll");
    if (call) {
        sd_bus_message_append(call.handle(), "s", dbus_names::interface);
    }
    DBusMessage answer = answered(bus_, call, false);
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
    answered(bus_,
             bus_.methodCall(dbus_names::service, dbus_names::objectPath, dbus_names::interface, member),
             mayStart);
}

} // namespace tovrel
