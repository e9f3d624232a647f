#pragma once

#include <filesystem>
#include <optional>

namespace tovrel {

/// The preferences database to use: the file named on the command line, else the one that the environment
/// variable TOVREL_PREFERENCES names, else tovrel/preferences.sqlite in the user's configuration directory.
std::filesystem::path preferencesFile(const std::optional<std::filesystem::path>& named = std::nullopt);

} // namespace tovrel
