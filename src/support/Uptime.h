#pragma once

#include <chrono>

namespace tovrel {

/// A moment as the time since the machine was started, including time asleep. Nobody can set this clock, so
/// it serves to tell how long ago something was.
using Uptime = std::chrono::nanoseconds;

/// The machine's uptime. Only the composition root reads it; everything else is handed its "now".
Uptime currentUptime();

} // namespace tovrel
