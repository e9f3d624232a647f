#pragma once

#include <cstdint>
#include <filesystem>

namespace tovrel {

/// Why an application may keep its menus from other programs.
enum class MenuObstacle {
    none,
    /// Its environment keeps GTK off the accessibility bus (NO_AT_BRIDGE, GTK_A11Y=none).
    switchedOff,
    /// Chromium and what is built on it. It looks for the accessibility bus only when told to by an option.
    browserEngine,
    /// Swing and its relatives reach the bus through a wrapper that has to be installed and named to them.
    java,
    /// GTK 2 reaches the bus through modules that the environment has to name when the application starts.
    gtk2WithoutBridge,
    /// Flatpak or Snap.
    sandbox,
};

/// What the system tells of a running process that gave no menus: its environment, the libraries it has
/// loaded and the files beside its program. `none` also where that cannot be read, as with other users'
/// processes. `proc` is where the kernel's file system of processes is.
MenuObstacle menuObstacleOf(std::int32_t processIdentifier, const std::filesystem::path& proc = "/proc");

} // namespace tovrel
