#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include <systemd/sd-bus.h>

#include "platform/linux/dbus/DBusInlet.h"

namespace tovrel {

using SteadyTime = std::chrono::steady_clock::time_point;

/// One D-Bus message, shared with the connection that holds it. A read is absent if the message has another
/// type at that place. Nothing here throws, whatever a peer sends.
class DBusMessage {
  public:
    DBusMessage() = default;
    /// Takes over the caller's reference; null makes an empty message.
    explicit DBusMessage(sd_bus_message* owned) : message_(owned) {}

    [[nodiscard]] explicit operator bool() const { return message_ != nullptr; }
    [[nodiscard]] sd_bus_message* handle() const { return message_.get(); }

    /// The serial number of the call this message answers, with a result or an error; absent for anything
    /// else.
    [[nodiscard]] std::optional<std::uint64_t> answeredCall() const;
    /// The error's name, such as "org.freedesktop.DBus.Error.UnknownObject"; empty when the message is no
    /// error.
    [[nodiscard]] std::string_view errorName() const;

    [[nodiscard]] std::optional<std::string_view> readString();
    [[nodiscard]] std::optional<std::uint32_t> readUint32();
    [[nodiscard]] std::optional<bool> readBoolean();
    /// The string in a variant, the form in which org.freedesktop.DBus.Properties.Get answers.
    [[nodiscard]] std::optional<std::string_view> readVariantString();
    [[nodiscard]] std::optional<bool> readVariantBoolean();
    /// The first two numbers of an array.
    [[nodiscard]] std::optional<std::pair<std::uint32_t, std::uint32_t>> readTwoUint32s();

  private:
    struct Release {
        void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
    };
    std::unique_ptr<sd_bus_message, Release> message_;
};

/// Whether the text is the unique name of a connection (":1.7"), which no other connection can take.
bool isUniqueName(const std::string& name);

/// A connection to a message bus. Nothing blocks without a deadline, not even closing. No callback is
/// registered: `receive` returns answers, so no exception ever crosses a C frame.
///
/// Nobody on the bus is trusted. A call goes to one connection, and its answer counts only from there. No
/// call starts a service. A message longer than `DBusInlet::longestMessage`, from any sender, is not received
/// but ends the connection.
class DBusConnection {
  public:
    /// Begins to connect to a bus; calls may be sent at once and are delivered when the bus has accepted the
    /// connection. Absent when nobody listens at the address, or `connectedUnixSocket` does not know its
    /// form.
    static std::optional<DBusConnection> open(const std::string& address);
    /// Connects to the session bus of this process's environment.
    static std::optional<DBusConnection> openSessionBus();
    /// Connects to a program that listens there itself; calls to it have no destination.
    static std::optional<DBusConnection> openPeer(const std::string& address);

    [[nodiscard]] bool isOpen() const { return bus_ && sd_bus_is_open(bus_.get()) > 0; }

    /// Whether the connection was lost because of a message that was too long.
    [[nodiscard]] bool wasOverwhelmed() const { return inlet_->hasRefused(); }

    /// The bytes received so far.
    [[nodiscard]] std::uint64_t received() const { return inlet_->received(); }

    /// A call, as yet without arguments, to a connection by its unique name or to the bus itself
    /// ("org.freedesktop.DBus"). `destination` is null for a peer, and only then. Empty when a name or the
    /// path is malformed, and for any other name: ask for its `owner` first, so that it is known who has to
    /// answer.
    [[nodiscard]] DBusMessage methodCall(const char* destination, const char* path, const char* interface,
                                         const char* member) const;

    /// A call to the bus itself.
    [[nodiscard]] DBusMessage busCall(const char* member) const;

    /// Queues the call for sending. Returns its serial number, which identifies the answer; absent on
    /// failure.
    std::optional<std::uint64_t> send(const DBusMessage& call);

    /// Queues a call that needs no answer.
    void tell(const DBusMessage& call);

    /// Waits for the next answer to any call, from the called connection or, if it is an error, from the bus.
    /// Absent when the deadline has passed or the connection is lost. An answer that has arrived is returned
    /// even after the deadline, so that a process that was itself delayed does not blame its peer.
    std::optional<DBusMessage> receive(SteadyTime deadline);

    /// Sends the call and waits for its answer, which may be an error message; drops answers to other calls.
    /// Absent when no answer came by the deadline.
    std::optional<DBusMessage> call(const DBusMessage& call, SteadyTime deadline);

    /// The unique name of the connection that owns a name; absent without an owner or when the bus did not
    /// answer.
    std::optional<std::string> owner(const char* name, SteadyTime deadline);

    /// Has the bus start the service of this name if the name has no owner yet, and waits until it runs.
    /// Returns false when there is no such service, or it does not run by the deadline.
    bool startService(const char* name, SteadyTime deadline);

  private:
    struct Close {
        void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
    };
    using Bus = std::unique_ptr<sd_bus, Close>;

    enum class Kind { bus, peer };

    static std::optional<DBusConnection> open(const std::string& address, Kind kind);

    DBusConnection(Bus bus, Kind kind, std::unique_ptr<DBusInlet> inlet)
        : bus_(std::move(bus)), kind_(kind), inlet_(std::move(inlet)) {}

    bool takeAwaited(const DBusMessage& answer);
    void waitForEvents(std::chrono::microseconds patience) const;

    Bus bus_; ///< Null once the connection is lost.
    Kind kind_;
    std::unique_ptr<DBusInlet> inlet_;
    /// The destinations of the unanswered calls, by serial number.
    std::unordered_map<std::uint64_t, std::string> awaited_;
};

} // namespace tovrel
