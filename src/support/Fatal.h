#pragma once

#include <string_view>

namespace tovrel {

/// Writes the message to standard error and aborts the process: for a broken invariant that must never be
/// hidden, such as an overflow of a score or a count.
[[noreturn]] void fatal(std::string_view message);

/// Does the same after a switch with a case for each value of one of our enumerations: only a number that is
/// no value of it gets there. Such a switch has no `default`, so the compiler names missing cases.
[[noreturn]] void noSuchValue(std::string_view enumeration);

} // namespace tovrel
