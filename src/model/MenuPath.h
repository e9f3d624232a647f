#pragma once

namespace tovrel {

/// Separates the titles of a menu path that serves as an identity: U+001F, the unit separator.
inline constexpr const char* menuPathSeparator = "\x1F";

} // namespace tovrel
