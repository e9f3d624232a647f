#pragma once

#include <optional>

#include "app/desktop/Desktop.h"
#include "platform/linux/menus/source/MenuReadReport.h"

namespace tovrel {

/// Says what a report means for the user, and what the user can do; absent when everything was read.
/// `isEnabled` tells whether toolkits are asked to publish their user interfaces.
std::optional<MenuReadShortfall> linuxMenuShortfall(const MenuReadReport& report,
                                                    const RunningApplication& application, bool isEnabled);

} // namespace tovrel
