#pragma once

#include <chrono>

namespace tovrel {

/// A moment as the time since the machine was started, time asleep included. Nobody can set this clock, so it
/// tells how long ago something was, and nothing else.
using Uptime = std::chrono::nanoseconds;

/// The machine's uptime. Only the composition root reads it; everything else is handed its "now".
Uptime currentUptime();

} // namespace tovrel
