#pragma once

#include "platform/linux/applications/ExecTexts.h"

namespace tovrel {

/// The environment this process was started with, for the programs it starts: what it has set for itself
/// since is not their business. Left out is what was meant for that one start (DESKTOP_STARTUP_ID and
/// XDG_ACTIVATION_TOKEN), for the windows of another program that took it over would be put behind others.
[[nodiscard]] ExecTexts startEnvironment();

} // namespace tovrel
