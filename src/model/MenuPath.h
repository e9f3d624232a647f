#pragma once

namespace tovrel {

/// Between the titles of a menu path where the path serves as an identity: U+001F, the unit separator.
inline constexpr const char* menuPathSeparator = "\x1F";

} // namespace tovrel
