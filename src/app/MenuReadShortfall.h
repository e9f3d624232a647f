#pragma once

#include <optional>
#include <string>

#include "app/MenuSource.h"
#include "platform/linux/MenuReadReport.h"

namespace tovrel {

/// What to tell of a read of an application's menus; absent when all was read. `isTrusted` is whether
/// accessibility is enabled for toolkits: where there was nothing to read, that may be why.
std::optional<MenuReadShortfall> menuReadShortfall(const MenuReadReport& report,
                                                   const std::string& applicationName, bool isTrusted);

} // namespace tovrel
