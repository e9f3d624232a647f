#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace tovrel {

/// The files by which the resident program of this display is found, in the user's runtime directory. One
/// process at a time has the seat. It works also while there is no session bus, and where one bus serves
/// several displays of the user, each of which has a resident program of its own.
struct ResidentSeat {
    /// Locked as long as a process has the seat; the file stays and means nothing by itself.
    std::filesystem::path lock;
    /// The process with the seat answers on it, as it does on the session bus.
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
