#pragma once

#include <optional>

#include "app/desktop/Desktop.h"
#include "platform/linux/menus/source/MenuReadReport.h"

namespace tovrel {

/// What a report means for the user, and what the user can do. `isEnabled`: toolkits are told to publish what
/// they show. Absent when everything was read.
std::optional<MenuReadShortfall> linuxMenuShortfall(const MenuReadReport& report,
                                                    const RunningApplication& application, bool isEnabled);

} // namespace tovrel
