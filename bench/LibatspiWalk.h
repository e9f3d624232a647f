#pragma once

#include <cstddef>
#include <cstdint>

namespace tovrel {

/// Reads the first menu bar of the process with libatspi, the platform's client library, one call after the
/// other, as its interface demands: name, role, states, children and key binding of every object. Returns the
/// number of objects read, 0 when there is no menu bar. Call it once per process, because the library keeps a
/// cache.
std::size_t walkMenusWithLibatspi(std::int32_t processIdentifier);

} // namespace tovrel
