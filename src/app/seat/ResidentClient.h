#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "app/seat/ResidentSeat.h"
#include "platform/linux/dbus/DBus.h"

namespace tovrel {

/// What the resident program says of itself.
struct ResidentStatus {
    std::string version;
    std::uint32_t processIdentifier = 0;
    bool isPaletteVisible = false;
    bool isAccessibilityTrusted = false;
    std::string shortcut;        ///< For people, such as "Ctrl+Shift+P"; empty when there is none.
    std::string shortcutProblem; ///< Why it does not work, in the user's language; empty while it does.
    std::string display;         ///< Where it shows its windows, as `displayName` says it.
    std::string target; ///< Identifier of the application the palette was last prepared for; may be empty.
    /// Why the last change of the preferences could not be stored; empty when it could.
    std::string unstoredChange;
};

/// Speaks to the resident program: to that of this display directly, and where none has its seat there, to
/// whichever has the name on the session bus. Throws Failure when neither can be found, or the program does
/// not answer within 5 s.
class ResidentClient {
  public:
    ResidentClient();

    /// Directly to who has this seat; absent when nobody listens there, as while one is just starting or
    /// ending.
    static std::optional<ResidentClient> ofSeat(const ResidentSeat& seat);
    /// To who has the name on the session bus.
    static ResidentClient ofSessionBus();

    /// Opens the palette, or closes it. Has the bus start the program if that knows how.
    void toggle();
    /// Opens the palette unless it is open.
    void show();
    /// Opens the settings window or brings it forward. Has the bus start the program if that knows how.
    void settings();
    void quit();
    [[nodiscard]] ResidentStatus status();

  private:
    enum class Road { direct, bus };

    ResidentClient(DBusConnection connection, Road road) : connection_(std::move(connection)), road_(road) {}

    static ResidentClient ofThisDisplay();
    void call(const char* member, bool mayStart);
    /// `mayStart`: the bus may start the program for it.
    [[nodiscard]] DBusMessage methodCall(const char* interface, const char* member, bool mayStart);

    DBusConnection connection_;
    Road road_;
};

/// Whether the session bus knows a resident program of this display; it then shows its palette.
bool isShownOverSessionBus();

} // namespace tovrel
