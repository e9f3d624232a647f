#include "platform/linux/dbus/DBus.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <utility>

#include <sys/socket.h>

#include "platform/posix/UnixSocket.h"

namespace tovrel {
namespace {

constexpr const char* busName = "org.freedesktop.DBus";

/// The steps that a connection may still do after a deadline to find an answer that has arrived already:
/// enough to write the queue and to read all input.
constexpr int stepsPastDeadline = 16;

/// Names in messages may be null.
std::string_view textOf(const char* name) {
    return name == nullptr ? std::string_view() : name;
}

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

std::optional<std::pair<std::uint32_t, std::uint32_t>> DBusMessage::readTwoUint32s() {
    const void* data = nullptr;
    std::size_t size = 0;
    if (message_ == nullptr ||
        sd_bus_message_read_array(message_.get(), SD_BUS_TYPE_UINT32, &data, &size) <= 0 ||
        size < 2 * sizeof(std::uint32_t)) {
        return std::nullopt;
    }
    const auto* words = static_cast<const std::uint32_t*>(data);
    return std::pair(words[0], words[1]);
}

bool isUniqueName(const std::string& name) {
    return name.starts_with(':') && sd_bus_service_name_is_valid(name.c_str()) > 0;
}

std::optional<DBusConnection> DBusConnection::open(const std::string& address) {
    return open(address, Kind::bus);
}

std::optional<DBusConnection> DBusConnection::openPeer(const std::string& address) {
    return open(address, Kind::peer);
}

std::optional<DBusConnection> DBusConnection::open(const std::string& address, Kind kind) {
    FileDescriptor connected = connectedUnixSocket(address);
    std::array<int, 2> ends{};
    if (!connected.isOpen() ||
        socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends.data()) != 0) {
        return std::nullopt;
    }
    FileDescriptor inner(ends[0]);
    FileDescriptor sink(ends[1]);
    FileDescriptor source(fcntl(connected.get(), F_DUPFD_CLOEXEC, 0));
    sd_bus* raw = nullptr;
    if (!source.isOpen() || sd_bus_new(&raw) < 0) {
        return std::nullopt;
    }
    Bus bus(raw);
    // The inlet would lose descriptors that others send, and nobody needs them.
    if (sd_bus_negotiate_fds(raw, 0) < 0 || sd_bus_set_bus_client(raw, kind == Kind::bus ? 1 : 0) < 0 ||
        sd_bus_set_fd(raw, inner.get(), connected.get()) < 0) {
        return std::nullopt;
    }
    inner.release();
    connected.release();
    if (sd_bus_start(raw) < 0) {
        return std::nullopt;
    }
    return DBusConnection(std::move(bus), kind,
                          std::make_unique<DBusInlet>(std::move(source), std::move(sink)));
}

std::optional<DBusConnection> DBusConnection::openSessionBus() {
    const auto variable = [](const char* name) {
        const char* value = std::getenv(name); // NOLINT(concurrency-mt-unsafe)
        return std::string(value == nullptr ? "" : value);
    };
    if (const std::string address = variable("DBUS_SESSION_BUS_ADDRESS"); !address.empty()) {
        return open(address);
    }
    const std::string folder = variable("XDG_RUNTIME_DIR");
    return folder.empty() ? std::nullopt : open("unix:path=" + folder + "/bus");
}

DBusMessage DBusConnection::methodCall(const char* destination, const char* path, const char* interface,
                                       const char* member) const {
    sd_bus_message* raw = nullptr;
    const bool isKnown = kind_ == Kind::peer
                             ? destination == nullptr
                             : destination != nullptr &&
                                   (isUniqueName(destination) || std::string_view(destination) == busName);
    if (!bus_ || !isKnown ||
        sd_bus_message_new_method_call(bus_.get(), &raw, destination, path, interface, member) < 0) {
        return {};
    }
    DBusMessage call(raw);
    return sd_bus_message_set_auto_start(raw, 0) >= 0 ? std::move(call) : DBusMessage();
}

DBusMessage DBusConnection::busCall(const char* member) const {
    return methodCall(busName, "/org/freedesktop/DBus", busName, member);
}

std::optional<std::uint64_t> DBusConnection::send(const DBusMessage& call) {
    std::uint64_t serial = 0;
    if (!call || !isOpen() || sd_bus_send(bus_.get(), call.handle(), &serial) < 0) {
        return std::nullopt;
    }
    awaited_.insert_or_assign(serial, textOf(sd_bus_message_get_destination(call.handle())));
    return serial;
}

void DBusConnection::tell(const DBusMessage& call) {
    if (call && isOpen()) {
        sd_bus_send(bus_.get(), call.handle(), nullptr);
    }
}

std::optional<DBusMessage> DBusConnection::receive(SteadyTime deadline) {
    int stepsLeft = stepsPastDeadline;
    while (isOpen()) {
        sd_bus_message* raw = nullptr;
        const int progress = sd_bus_process(bus_.get(), &raw);
        DBusMessage message(raw);
        if (progress < 0) {
            bus_.reset();
            break;
        }
        if (takeAwaited(message)) {
            return message;
        }
        const bool isIdle = progress == 0 && !inlet_->pass();
        const auto left = std::chrono::duration_cast<std::chrono::microseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 && (isIdle || --stepsLeft == 0)) {
            break;
        }
        if (isIdle) {
            waitForEvents(left);
        }
    }
    if (!isOpen()) {
        bus_.reset(); // Also drops an incomplete message.
    }
    return std::nullopt;
}

bool DBusConnection::takeAwaited(const DBusMessage& answer) {
    const auto serial = answer.answeredCall();
    const auto asked = serial ? awaited_.find(*serial) : awaited_.end();
    if (asked == awaited_.end()) {
        return false;
    }
    const std::string_view sender = textOf(sd_bus_message_get_sender(answer.handle()));
    const bool isFromThere =
        kind_ == Kind::peer || sender == asked->second || (sender == busName && !answer.errorName().empty());
    if (isFromThere) {
        awaited_.erase(asked);
    }
    return isFromThere;
}

void DBusConnection::waitForEvents(std::chrono::microseconds patience) const {
    // Output bypasses the inlet. Until the bus has accepted the connection, the library must look at its own
    // timeout, so a single wait is at most this long.
    constexpr std::chrono::milliseconds longest{1000};
    const int events = sd_bus_get_events(bus_.get());
    pollfd socket{.fd = inlet_->source(),
                  .events = static_cast<short>(POLLIN | (events > 0 ? events & POLLOUT : 0)),
                  .revents = 0};
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(patience);
    // An interrupted wait only ends early: the caller looks at the clock again.
    poll(&socket, 1, static_cast<int>(std::min(wait, longest).count()));
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

std::optional<std::string> DBusConnection::owner(const char* name, SteadyTime deadline) {
    const DBusMessage question = busCall("GetNameOwner");
    if (!question || sd_bus_message_append(question.handle(), "s", name) < 0) {
        return std::nullopt;
    }
    auto answer = call(question, deadline);
    auto owner = answer && answer->errorName().empty() ? std::string(answer->readString().value_or("")) : "";
    return isUniqueName(owner) ? std::optional(std::move(owner)) : std::nullopt;
}

bool DBusConnection::startService(const char* name, SteadyTime deadline) {
    constexpr std::uint32_t noFlags = 0;
    const DBusMessage request = busCall("StartServiceByName");
    if (!request || sd_bus_message_append(request.handle(), "su", name, noFlags) < 0) {
        return false;
    }
    const auto answer = call(request, deadline);
    return answer && answer->errorName().empty();
}

} // namespace tovrel
