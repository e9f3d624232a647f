#pragma once

#include <optional>

#include "platform/linux/dbus/DBus.h"

namespace tovrel {

/// The session bus, connected when it is first needed and again after the connection was lost.
class SessionBus {
  public:
    /// Null when there is none. Stays valid until `connection` or `disconnect` is called again.
    [[nodiscard]] DBusConnection* connection();

    /// Drops the connection: late answers to calls that were given up are then no longer kept by anyone.
    void disconnect() { connection_.reset(); }

  private:
    std::optional<DBusConnection> connection_;
};

} // namespace tovrel
