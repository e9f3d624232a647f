#pragma once

#include <filesystem>
#include <vector>

namespace tovrel::xdg {

/// The user's configuration directory: $XDG_CONFIG_HOME if absolute, else ~/.config (XDG Base Directory 0.8).
std::filesystem::path configHome();

/// The directories of data files, most important first: $XDG_DATA_HOME, else ~/.local/share, then
/// $XDG_DATA_DIRS, else /usr/local/share and /usr/share. Relative entries are ignored, as the standard
/// demands.
std::vector<std::filesystem::path> dataDirectories();

} // namespace tovrel::xdg
