#pragma once

#include <cstdint>
#include <filesystem>

namespace tovrel {

/// Why an application may publish no menus.
enum class MenuObstacle {
    none,
    /// Its environment keeps GTK off the accessibility bus (NO_AT_BRIDGE, GTK_A11Y=none).
    switchedOff,
    /// Chromium and programs built on it look for the accessibility bus only with a command-line option.
    browserEngine,
    /// Swing and its relatives need a wrapper, which must be installed and configured.
    java,
    /// GTK 2 needs modules that the environment must name when the application starts.
    gtk2WithoutBridge,
    /// Flatpak or Snap isolates the application.
    sandbox,
};

/// Finds out why a running process gave no menus, from its environment, its loaded libraries and the files
/// beside its program. `none` also if these cannot be read, for instance for other users' processes. `proc`
/// is the place of the kernel's process file system.
MenuObstacle menuObstacleOf(std::int32_t processIdentifier, const std::filesystem::path& proc = "/proc");

} // namespace tovrel
