#pragma once

#include <optional>

#include "platform/linux/dbus/DBus.h"

namespace tovrel {

/// The session bus. It connects when it is first needed, and again after the connection was lost.
class SessionBus {
  public:
    /// The connection; null when there is no bus. Valid until `connection` or `disconnect` is called again.
    [[nodiscard]] DBusConnection* connection();

    /// Drops the connection, so that nobody keeps late answers to calls that were given up.
    void disconnect() { connection_.reset(); }

  private:
    std::optional<DBusConnection> connection_;
};

} // namespace tovrel
