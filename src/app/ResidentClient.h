#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/linux/DBus.h"

namespace tovrel {

/// What the resident program says of itself.
struct ResidentStatus {
    std::string version;
    std::uint32_t processIdentifier = 0;
    bool isPaletteVisible = false;
    bool isAccessibilityTrusted = false;
    std::string shortcut;        ///< For people, such as "Ctrl+Shift+P"; empty when there is none.
    std::string shortcutProblem; ///< Why it does not work, in the user's language; empty while it does.
    std::string target; ///< Identifier of the application the palette was last prepared for; may be empty.
};

/// Speaks to the resident program over the session bus. Throws Failure when there is no session bus, the
/// program does not run, or it does not answer within 5 s; a custom command that it waits for may take that
/// long.
class ResidentClient {
  public:
    ResidentClient();

    /// Opens the palette, or closes it. Has the bus start the program if that knows how.
    void toggle();
    /// Opens the palette unless it is open.
    void show();
    /// Opens the settings window or brings it forward. Has the bus start the program if that knows how.
    void settings();
    void quit();
    [[nodiscard]] ResidentStatus status();

  private:
    void call(const char* member, bool mayStart);

    DBusConnection bus_;
};

} // namespace tovrel
