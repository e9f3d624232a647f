#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "app/seat/ResidentSeat.h"
#include "platform/linux/dbus/DBus.h"

namespace tovrel {

/// The state that the resident program reports.
struct ResidentStatus {
    std::string version;
    std::uint32_t processIdentifier = 0;
    bool isPaletteVisible = false;
    bool isAccessibilityTrusted = false;
    std::string shortcut;        ///< For people, such as "Ctrl+Shift+P"; empty when there is none.
    std::string shortcutProblem; ///< Why it does not work, in the user's language; empty while it does.
    std::string display;         ///< The display it shows its windows on, as from `displayName`.
    std::string target; ///< Identifier of the application the palette was last prepared for; may be empty.
    /// The reason why the last change of the preferences could not be stored; empty when it could.
    std::string unstoredChange;
};

/// Calls the resident program: directly if one has the seat of this display, else through its name on the
/// session bus. Throws Failure when neither can be found, or when the program does not answer within 5 s.
class ResidentClient {
  public:
    ResidentClient();

    /// Connects directly to the process that has this seat; absent when nobody listens there, for instance
    /// while it is starting or ending.
    static std::optional<ResidentClient> ofSeat(const ResidentSeat& seat);
    /// Connects to the process that owns the name on the session bus.
    static ResidentClient ofSessionBus();

    /// Opens the palette, or closes it. The bus starts the program if it knows how.
    void toggle();
    /// Opens the palette unless it is open.
    void show();
    /// Opens the settings window or brings it forward. The bus starts the program if it knows how.
    void settings();
    void quit();
    [[nodiscard]] ResidentStatus status();

  private:
    enum class Road { direct, bus };

    ResidentClient(DBusConnection connection, Road road) : connection_(std::move(connection)), road_(road) {}

    static ResidentClient ofThisDisplay();
    void call(const char* member, bool mayStart);
    /// With `mayStart` the bus may start the program for the call.
    [[nodiscard]] DBusMessage methodCall(const char* interface, const char* member, bool mayStart);

    DBusConnection connection_;
    Road road_;
};

/// Asks the resident program of this display over the session bus to show its palette; returns whether there
/// is one.
bool isShownOverSessionBus();

} // namespace tovrel
