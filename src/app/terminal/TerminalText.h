#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Measures and cuts texts for the columns of a terminal. All texts are printable (support/PrintableText.h).
namespace tovrel::terminal_text {

/// The number of columns the text takes: two for wide and full-width characters (Unicode Standard Annex 11),
/// none for combining marks, format characters and the later letters of a Hangul syllable, else one.
std::size_t displayWidth(std::string_view text);

enum class ElideAt { start, end };

/// The text in at most `width` columns; a longer one is cut, with "…" in place of the rest.
std::string elided(std::string_view text, std::size_t width, ElideAt side);

} // namespace tovrel::terminal_text
