#pragma once

#include "platform/linux/applications/ExecTexts.h"

namespace tovrel {

/// The environment this process was started with, for the programs it starts, without what it has set for
/// itself since. Variables that were meant for that one start are left out (DESKTOP_STARTUP_ID and
/// XDG_ACTIVATION_TOKEN): the windows of another program that took them over would be put behind others.
[[nodiscard]] ExecTexts startEnvironment();

} // namespace tovrel
