#include "platform/linux/DBus.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tovrel {
namespace {

/// Steps of work a connection may still do past a deadline before it gives up on finding an answer that lies
/// ready: enough to write what is queued and to read what has arrived.
constexpr int stepsPastDeadline = 16;

template <typename Value>
std::optional<Value> readBasic(sd_bus_message* message, char type) {
    Value value{};
    if (message == nullptr || sd_bus_message_read_basic(message, type, &value) <= 0) {
        return std::nullopt;
    }
    return value;
}

std::optional<std::string_view> readStringFrom(sd_bus_message* message) {
    const auto text = readBasic<const char*>(message, SD_BUS_TYPE_STRING);
    return text ? std::optional<std::string_view>(*text) : std::nullopt;
}

std::optional<bool> readBooleanFrom(sd_bus_message* message) {
    const auto value = readBasic<int>(message, SD_BUS_TYPE_BOOLEAN);
    return value ? std::optional(*value != 0) : std::nullopt;
}

bool enterVariant(sd_bus_message* message, const char* contents) {
    return message != nullptr && sd_bus_message_enter_container(message, SD_BUS_TYPE_VARIANT, contents) > 0;
}

} // namespace

std::optional<std::uint64_t> DBusMessage::answeredCall() const {
    std::uint64_t serial = 0;
    if (message_ == nullptr || sd_bus_message_get_reply_cookie(message_.get(), &serial) < 0) {
        return std::nullopt;
    }
    return serial;
}

std::string_view DBusMessage::errorName() const {
    const sd_bus_error* error = message_ == nullptr ? nullptr : sd_bus_message_get_error(message_.get());
    return error != nullptr && error->name != nullptr ? error->name : std::string_view();
}

std::optional<std::string_view> DBusMessage::readString() {
    return readStringFrom(message_.get());
}

std::optional<std::uint32_t> DBusMessage::readUint32() {
    return readBasic<std::uint32_t>(message_.get(), SD_BUS_TYPE_UINT32);
}

std::optional<bool> DBusMessage::readBoolean() {
    return readBooleanFrom(message_.get());
}

std::optional<std::string_view> DBusMessage::readVariantString() {
    return enterVariant(message_.get(), "s") ? readStringFrom(message_.get()) : std::nullopt;
}

std::optional<bool> DBusMessage::readVariantBoolean() {
    return enterVariant(message_.get(), "b") ? readBooleanFrom(message_.get()) : std::nullopt;
}

std::optional<std::vector<std::uint32_t>> DBusMessage::readUint32Array() {
    const void* data = nullptr;
    std::size_t size = 0;
    if (message_ == nullptr ||
        sd_bus_message_read_array(message_.get(), SD_BUS_TYPE_UINT32, &data, &size) <= 0) {
        return std::nullopt;
    }
    const auto* words = static_cast<const std::uint32_t*>(data);
    return std::vector<std::uint32_t>(words, words + size / sizeof(std::uint32_t));
}

std::optional<DBusConnection> DBusConnection::open(const std::string& address) {
    return open(address, true);
}

std::optional<DBusConnection> DBusConnection::openPeer(const std::string& address) {
    return open(address, false);
}

std::optional<DBusConnection> DBusConnection::open(const std::string& address, bool isBus) {
    sd_bus* raw = nullptr;
    if (sd_bus_new(&raw) < 0) {
        return std::nullopt;
    }
    Bus bus(raw);
    if (sd_bus_set_address(raw, address.c_str()) < 0 || sd_bus_set_bus_client(raw, isBus ? 1 : 0) < 0 ||
        sd_bus_start(raw) < 0) {
        return std::nullopt;
    }
    return DBusConnection(std::move(bus));
}

std::optional<DBusConnection> DBusConnection::openSessionBus() {
    sd_bus* raw = nullptr;
    if (sd_bus_open_user(&raw) < 0) {
        return std::nullopt;
    }
    return DBusConnection(Bus(raw));
}

DBusMessage DBusConnection::methodCall(const char* destination, const char* path, const char* interface,
                                       const char* member) const {
    sd_bus_message* raw = nullptr;
    if (sd_bus_message_new_method_call(bus_.get(), &raw, destination, path, interface, member) < 0) {
        return {};
    }
    return DBusMessage(raw);
}

std::optional<std::uint64_t> DBusConnection::send(const DBusMessage& call) {
    std::uint64_t serial = 0;
    if (!call || !isOpen() || sd_bus_send(bus_.get(), call.handle(), &serial) < 0) {
        return std::nullopt;
    }
    return serial;
}

std::optional<DBusMessage> DBusConnection::receive(SteadyTime deadline) {
    int stepsLeft = stepsPastDeadline;
    while (isOpen()) {
        sd_bus_message* raw = nullptr;
        const int progress = sd_bus_process(bus_.get(), &raw);
        DBusMessage message(raw);
        if (progress < 0) {
            lost_ = true;
            break;
        }
        if (message.answeredCall()) {
            return message;
        }
        const auto left = std::chrono::duration_cast<std::chrono::microseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 && (progress == 0 || --stepsLeft == 0)) {
            break;
        }
        if (progress == 0) {
            // An interrupted wait is one that ended early: the loop looks at the clock again.
            sd_bus_wait(bus_.get(), static_cast<std::uint64_t>(left.count()));
        }
    }
    return std::nullopt;
}

std::optional<DBusMessage> DBusConnection::call(const DBusMessage& call, SteadyTime deadline) {
    const auto serial = send(call);
    if (!serial) {
        return std::nullopt;
    }
    while (auto answer = receive(deadline)) {
        if (answer->answeredCall() == serial) {
            return answer;
        }
    }
    return std::nullopt;
}

} // namespace tovrel
