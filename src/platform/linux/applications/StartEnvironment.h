#pragma once

#include "platform/linux/applications/ExecTexts.h"

namespace tovrel {

/// The environment for programs that this process starts: the one it was started with, without variables that
/// it has set since. DESKTOP_STARTUP_ID and XDG_ACTIVATION_TOKEN are left out, because they were meant for
/// that one start: the windows of another program that used them would be put behind others.
[[nodiscard]] ExecTexts startEnvironment();

} // namespace tovrel
