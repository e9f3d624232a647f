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

/// One D-Bus message, shared with the connection that holds it. A read of another type than the message holds
/// at that place is absent; whatever a peer sends, nothing here throws.
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
    /// Such as "org.freedesktop.DBus.Error.UnknownObject"; empty when the message is no error.
    [[nodiscard]] std::string_view errorName() const;

    [[nodiscard]] std::optional<std::string_view> readString();
    [[nodiscard]] std::optional<std::uint32_t> readUint32();
    [[nodiscard]] std::optional<bool> readBoolean();
    /// The value in a variant, as org.freedesktop.DBus.Properties.Get answers it.
    [[nodiscard]] std::optional<std::string_view> readVariantString();
    [[nodiscard]] std::optional<bool> readVariantBoolean();
    /// The first two of an array of numbers.
    [[nodiscard]] std::optional<std::pair<std::uint32_t, std::uint32_t>> readTwoUint32s();

  private:
    struct Release {
        void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
    };
    std::unique_ptr<sd_bus_message, Release> message_;
};

/// Whether the text is the name of one connection (":1.7"), which nobody else can take.
bool isUniqueName(const std::string& name);

/// A connection to a message bus. Nothing blocks without a deadline, closing included, and
/// no callback is registered: answers come out of `receive`, so no exception ever crosses a C frame.
///
/// Nobody on the bus is trusted. A call goes to one connection, and its answer counts only from there. No
/// call starts a service. A message longer than `DBusInlet::longestMessage`, whoever sends it, ends the
/// connection instead of being received.
class DBusConnection {
  public:
    /// Begins to connect to a bus; calls may be sent at once and are delivered when the bus has accepted the
    /// connection. Absent when nobody listens at the address, or it is not one of `connectedUnixSocket`.
    static std::optional<DBusConnection> open(const std::string& address);
    /// The same for the session bus of this process's environment.
    static std::optional<DBusConnection> openSessionBus();
    /// The same for one program that listens there itself, whose calls have no destination.
    static std::optional<DBusConnection> openPeer(const std::string& address);

    [[nodiscard]] bool isOpen() const { return bus_ && sd_bus_is_open(bus_.get()) > 0; }

    /// Whether it was lost because of a message that was too long.
    [[nodiscard]] bool wasOverwhelmed() const { return inlet_->hasRefused(); }

    /// Bytes that have been sent here so far.
    [[nodiscard]] std::uint64_t received() const { return inlet_->received(); }

    /// A call without arguments yet, to a connection by its unique name or to the bus itself
    /// ("org.freedesktop.DBus"); to a peer, and only there, `destination` is null. Empty when a name or the
    /// path is malformed, and for any other name: whoever owns that is to be asked for first (`owner`), so
    /// that it is known who has to answer.
    [[nodiscard]] DBusMessage methodCall(const char* destination, const char* path, const char* interface,
                                         const char* member) const;

    /// A call to the bus itself.
    [[nodiscard]] DBusMessage busCall(const char* member) const;

    /// Queues the call for sending. Its serial number, by which the answer is known; absent on failure.
    std::optional<std::uint64_t> send(const DBusMessage& call);

    /// Queues a call that nobody has to answer.
    void tell(const DBusMessage& call);

    /// The next answer to any call, from the connection that was called or, if it is an error, from the bus;
    /// absent when the deadline has passed or the connection is lost. An answer
    /// that lies ready is handed out even past the deadline, so that a process that was itself kept from
    /// running does not take the delay for its peer's.
    std::optional<DBusMessage> receive(SteadyTime deadline);

    /// Sends the call and waits for its answer, which may be an error message; answers to other calls are
    /// dropped. Absent when none came by the deadline.
    std::optional<DBusMessage> call(const DBusMessage& call, SteadyTime deadline);

    /// The unique name of the connection that owns a name; absent when nobody does or the bus did not answer.
    std::optional<std::string> owner(const char* name, SteadyTime deadline);

    /// Has the bus start the service of this name if nobody owns it yet, and waits until it runs. False when
    /// there is none, or it does not come up by the deadline.
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
    /// Whom each call went to that has not been answered.
    std::unordered_map<std::uint64_t, std::string> awaited_;
};

} // namespace tovrel
