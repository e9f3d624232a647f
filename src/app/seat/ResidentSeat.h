#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace tovrel {

/// The files in the user's runtime directory through which the resident program of this display is found. One
/// process at a time has the seat. The seat works without a session bus, and also where one bus serves
/// several displays of the user, each with a resident program of its own.
struct ResidentSeat {
    /// Locked while a process has the seat; the file's existence means nothing.
    std::filesystem::path lock;
    /// The process with the seat answers here as it does on the session bus.
    std::filesystem::path socket;

    /// Absent where $XDG_RUNTIME_DIR names no directory.
    static std::optional<ResidentSeat> ofEnvironment();

    /// The socket as a D-Bus address.
    [[nodiscard]] std::string address() const;
};

/// $DISPLAY without the number of a screen, because all screens of a display share one program; empty without
/// a display.
std::string displayName();

} // namespace tovrel
