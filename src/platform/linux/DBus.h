#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <systemd/sd-bus.h>

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
    [[nodiscard]] std::optional<std::vector<std::uint32_t>> readUint32Array();

  private:
    struct Release {
        void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
    };
    std::unique_ptr<sd_bus_message, Release> message_;
};

/// A connection to a message bus. Nothing blocks without a deadline, closing included, and
/// no callback is registered: answers come out of `receive`, so no exception ever crosses a C frame.
class DBusConnection {
  public:
    /// Begins to connect to a bus; calls may be sent at once and are delivered when the bus has accepted the
    /// connection. Absent when the address is malformed or nobody listens there.
    static std::optional<DBusConnection> open(const std::string& address);
    /// The same for the session bus of this process's environment.
    static std::optional<DBusConnection> openSessionBus();
    /// The same for one program that listens there itself, whose calls have no destination.
    static std::optional<DBusConnection> openPeer(const std::string& address);

    [[nodiscard]] bool isOpen() const { return !lost_ && sd_bus_is_open(bus_.get()) > 0; }

    /// A call without arguments yet; empty when a name or the path is malformed. `destination` is null for a
    /// peer.
    [[nodiscard]] DBusMessage methodCall(const char* destination, const char* path, const char* interface,
                                         const char* member) const;

    /// Queues the call for sending. Its serial number, by which the answer is known; absent on failure.
    std::optional<std::uint64_t> send(const DBusMessage& call);

    /// The next answer to any call; absent when the deadline has passed or the connection is lost. An answer
    /// that lies ready is handed out even past the deadline, so that a process that was itself kept from
    /// running does not take the delay for its peer's.
    std::optional<DBusMessage> receive(SteadyTime deadline);

    /// Sends the call and waits for its answer, which may be an error message; answers to other calls are
    /// dropped. Absent when none came by the deadline.
    std::optional<DBusMessage> call(const DBusMessage& call, SteadyTime deadline);

  private:
    struct Close {
        void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
    };
    using Bus = std::unique_ptr<sd_bus, Close>;

    static std::optional<DBusConnection> open(const std::string& address, bool isBus);

    explicit DBusConnection(Bus bus) : bus_(std::move(bus)) {}

    Bus bus_;
    bool lost_ = false;
};

} // namespace tovrel
