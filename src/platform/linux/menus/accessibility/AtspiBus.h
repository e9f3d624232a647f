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

/// The accessibility bus: a separate message bus, whose address is looked up when it is first needed. This
/// class calls only the bus and its registry, never applications, so a hung application delays nothing.
class AtspiBus {
  public:
    /// `addressOnScreen` returns the address that the display publishes, which is the only source when the
    /// session bus cannot be reached; it may be empty.
    explicit AtspiBus(std::function<std::optional<std::string>()> addressOnScreen = {});

    /// The connection, which is opened when there is none or the last one was lost; null when there is no
    /// bus. Valid until `connection` or `disconnect` is called again.
    [[nodiscard]] DBusConnection* connection();

    /// Drops the connection, so that nobody keeps late answers to calls that were given up.
    void disconnect() { connection_.reset(); }

    /// Whether the bus answers (waiting at most half a second).
    [[nodiscard]] bool answers();

    /// Whether accessibility is enabled for toolkits: IsEnabled of org.a11y.Status on the session bus. GTK
    /// always registers on the accessibility bus, Qt and Firefox only when it is enabled. When the launcher
    /// is silent for 100 ms, its last answer counts. False when unknown.
    [[nodiscard]] bool isEnabled();
    /// Enables or disables accessibility; returns false when nobody accepts it.
    bool setEnabled(bool isEnabled);

    /// The applications on the bus that have a process identifier; absent when the registry does not answer
    /// within half a second.
    [[nodiscard]] std::optional<std::vector<AtspiApplication>> applications();

  private:
    [[nodiscard]] std::optional<std::string> address();

    /// Sets `session_` and `launcher_` if they are unknown; returns whether both are known.
    bool findLauncher(SteadyTime deadline);

    /// The answer of the launcher, the object on the session bus that starts the accessibility bus; absent
    /// for an error and for silence, which sets `silentUntil_`.
    template <typename Arguments>
    std::optional<DBusMessage> askLauncher(std::chrono::milliseconds patience, const char* interface,
                                           const char* member, Arguments arguments);

    std::function<std::optional<std::string>()> addressOnScreen_;
    std::optional<DBusConnection> session_;
    std::optional<std::string> launcher_;   ///< Unique name of the launcher on `session_`.
    std::optional<SteadyTime> silentUntil_; ///< When a silent launcher is asked again.
    std::optional<bool> isKnownEnabled_;    ///< The launcher's last answer.
    std::optional<DBusConnection> connection_;
};

} // namespace tovrel
