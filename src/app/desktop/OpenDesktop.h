#pragma once

#include <filesystem>
#include <memory>

#include "app/desktop/Desktop.h"

namespace tovrel {

/// The desktop that this process finds in its environment. This alone chooses a system and a display. Null on
/// a system whose applications cannot be reached yet; on others there is a desktop even without a display.
[[nodiscard]] std::shared_ptr<Desktop> openDesktop();

/// Where this system's programs keep what the user sets, in a folder each.
[[nodiscard]] std::filesystem::path configurationDirectory();

} // namespace tovrel
