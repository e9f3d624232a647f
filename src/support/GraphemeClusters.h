#pragma once

#include <cstddef>
#include <string_view>

namespace tovrel {

/// The start of a UTF-8 text: all of it if it is no longer than `maximumBytes`, else the first extended
/// grapheme clusters (Unicode Standard Annex 29) that fit, or, if the first cluster alone is longer, the code
/// points of it that fit.
std::string_view wholeClusters(std::string_view text, std::size_t maximumBytes);

} // namespace tovrel
