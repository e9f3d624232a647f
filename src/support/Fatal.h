#pragma once

#include <string_view>

namespace tovrel {

/// Writes the message to standard error and aborts the process: for a broken invariant that must never be
/// papered over, such as an overflow of a score or a count.
[[noreturn]] void fatal(std::string_view message);

} // namespace tovrel
