#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/dbus/DBus.h"

namespace tovrel {

/// An application on the accessibility bus.
struct AtspiApplication {
    std::string busName; ///< Unique name, such as ":1.7".
    std::string root;    ///< Path of its application object.
    std::int32_t processIdentifier = 0;
};

/// The accessibility bus: a message bus of its own, whose address is found when it is first needed. No
/// application is asked here, only the bus and the registry on it, so a hung application delays nothing.
class AtspiBus {
  public:
    /// `addressOnScreen` answers the address that the display carries, which is the only source
    /// left when the session bus is out of reach; it may be empty.
    explicit AtspiBus(std::function<std::optional<std::string>()> addressOnScreen = {});

    /// The connection, opened anew when there is none or the last one was lost; null when there is no bus.
    /// Stays valid until `connection` or `disconnect` is called again.
    [[nodiscard]] DBusConnection* connection();

    /// Drops the connection: late answers to calls that were given up are then no longer kept by anyone.
    void disconnect() { connection_.reset(); }

    /// Whether the bus answers (waiting at most half a second).
    [[nodiscard]] bool answers();

    /// Whether accessibility is enabled for toolkits: IsEnabled of org.a11y.Status on the session bus. GTK
    /// registers on the accessibility bus regardless, Qt and Firefox only when it is. A launcher that is
    /// silent for 100 ms still stands by its last answer. False when unknown.
    [[nodiscard]] bool isEnabled();
    /// Sets it. False when nobody takes it.
    bool setEnabled(bool isEnabled);

    /// The applications on the bus that have a process identifier; absent when the registry does not answer
    /// within half a second.
    [[nodiscard]] std::optional<std::vector<AtspiApplication>> applications();

  private:
    [[nodiscard]] std::optional<std::string> address();

    /// Sees to it that `session_` and `launcher_` are known.
    bool findLauncher(SteadyTime deadline);

    /// What the object on the session bus answers that starts the accessibility bus; absent for an error, and
    /// when it is silent, which `silentUntil_` tells.
    template <typename Arguments>
    std::optional<DBusMessage> askLauncher(std::chrono::milliseconds patience, const char* interface,
                                           const char* member, Arguments arguments);

    std::function<std::optional<std::string>()> addressOnScreen_;
    std::optional<DBusConnection> session_;
    std::optional<std::string> launcher_;   ///< Unique name of that object's owner on `session_`.
    std::optional<SteadyTime> silentUntil_; ///< Since it did not answer: when it is asked again.
    std::optional<bool> isKnownEnabled_;    ///< As it answered last.
    std::optional<DBusConnection> connection_;
};

} // namespace tovrel
