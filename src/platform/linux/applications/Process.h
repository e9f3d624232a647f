#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tovrel {

/// The start time of a process, in clock ticks since the machine was started (/proc/PID/stat, field 22).
/// Together with the identifier it identifies a process uniquely. Absent when there is no such process, or
/// when it has ended and only waits to be collected.
std::optional<std::uint64_t> processStartTime(std::int32_t processIdentifier);

/// The name of the program file that the process runs, without its folders; empty when it cannot be known.
std::string processExecutable(std::int32_t processIdentifier);

/// The name of the script that the process runs, without its folders. It is the second word of the command
/// line if that is an absolute path, because the kernel puts the script's path there for an interpreter.
/// Empty for other processes, as far as this can tell.
std::string processScript(std::int32_t processIdentifier);

} // namespace tovrel
