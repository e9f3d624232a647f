#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tovrel {

/// The start time of a process, in clock ticks since the machine was started (/proc/PID/stat, field 22);
/// together with the identifier it names one process for good. Absent when there is no such process, or when
/// it has ended and only waits to be collected.
std::optional<std::uint64_t> processStartTime(std::int32_t processIdentifier);

/// The name of the program file that the process runs, without its folders; empty when it cannot be known.
std::string processExecutable(std::int32_t processIdentifier);

/// The name of the script that the process runs, without its folders: the second word of the command line
/// when it is an absolute path, as the kernel puts it there for a script's interpreter. Empty for other
/// processes, as far as that tells them apart.
std::string processScript(std::int32_t processIdentifier);

} // namespace tovrel
