#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace tovrel {

/// The place of the resident program of this display, in the user's directory for such things. One process at
/// a time has it. It is found there also while no session bus is, and where one bus serves several displays
/// of the user, each of which has a resident program of its own.
struct ResidentSeat {
    /// Locked as long as a process has the seat; the file stays and means nothing by itself.
    std::filesystem::path lock;
    /// On which that process answers, as it does on the session bus.
    std::filesystem::path socket;

    /// Absent where $XDG_RUNTIME_DIR names no directory.
    static std::optional<ResidentSeat> ofEnvironment();

    /// The socket as a D-Bus address.
    [[nodiscard]] std::string address() const;
};

/// $DISPLAY without the number of a screen, because the screens of a display have one program together; empty
/// without a display.
std::string displayName();

} // namespace tovrel
