#pragma once

#include <filesystem>
#include <memory>

#include "app/desktop/Desktop.h"

namespace tovrel {

/// Opens the desktop that this process finds in its environment. Only this function chooses a system and a
/// display. Null on a system whose applications cannot be reached yet; other systems have a desktop even
/// without a display.
[[nodiscard]] std::shared_ptr<Desktop> openDesktop();

/// The directory in which this system's programs keep their settings, each in a folder of its own.
[[nodiscard]] std::filesystem::path configurationDirectory();

} // namespace tovrel
