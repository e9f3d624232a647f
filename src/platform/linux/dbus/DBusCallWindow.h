#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <unordered_map>

#include "platform/linux/dbus/DBus.h"

namespace tovrel {

/// Calls over one connection of which a bounded number is under way at a time. Giving up on the answers is
/// destroying the object: late ones then find nobody.
class DBusCallWindow {
  public:
    using Handler = std::function<void(DBusMessage&)>;

    DBusCallWindow(DBusConnection& connection, std::size_t limit) : connection_(connection), limit_(limit) {}

    [[nodiscard]] bool hasRoom() const { return pending_.size() < limit_; }
    [[nodiscard]] bool isIdle() const { return pending_.empty(); }

    /// Sends a call; the handler gets its answer, result or error, out of `wait`. False when the call could
    /// not be sent.
    bool send(const DBusMessage& call, Handler handler);

    /// Waits for the next answer to one of the calls and hands it to its handler. False when none came by the
    /// deadline or the connection is lost. Like `DBusConnection::receive`, it prefers an answer to the clock.
    bool wait(SteadyTime deadline);

  private:
    DBusConnection& connection_;
    std::size_t limit_;
    std::unordered_map<std::uint64_t, Handler> pending_;
};

} // namespace tovrel
