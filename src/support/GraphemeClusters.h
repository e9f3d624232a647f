#pragma once

#include <cstddef>
#include <string_view>

namespace tovrel {

/// The start of a text of UTF-8: all of it if it is no longer than `maximumBytes`, else its first extended
/// grapheme clusters (Unicode Standard Annex 29) that fit in, or, if the first cluster alone is longer, the
/// code points of it that fit in.
std::string_view wholeClusters(std::string_view text, std::size_t maximumBytes);

} // namespace tovrel
