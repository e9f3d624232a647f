#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <unordered_map>

#include "platform/linux/dbus/DBus.h"

namespace tovrel {

/// Calls over one connection, a bounded number at a time. Destroying the object gives up on the answers: late
/// ones are dropped.
class DBusCallWindow {
  public:
    using Handler = std::function<void(DBusMessage&)>;

    DBusCallWindow(DBusConnection& connection, std::size_t limit) : connection_(connection), limit_(limit) {}

    [[nodiscard]] bool hasRoom() const { return pending_.size() < limit_; }
    [[nodiscard]] bool isIdle() const { return pending_.empty(); }

    /// Sends a call; `wait` hands its answer, a result or an error, to the handler. Returns false when the
    /// call could not be sent.
    bool send(const DBusMessage& call, Handler handler);

    /// Waits for the next answer to one of the calls and hands it to its handler. Returns false when none
    /// came by the deadline or the connection is lost. Like `DBusConnection::receive`, it handles an answer
    /// that has arrived even after the deadline.
    bool wait(SteadyTime deadline);

  private:
    DBusConnection& connection_;
    std::size_t limit_;
    std::unordered_map<std::uint64_t, Handler> pending_;
};

} // namespace tovrel
