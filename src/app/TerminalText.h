#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Texts as they are shown on a terminal.
namespace tovrel::terminal_text {

/// The text with everything replaced that could do more than appear where it is written: C0 controls by
/// their pictures (U+2400…), other controls, line and paragraph separators and the characters that reorder
/// their surroundings by U+FFFD. Titles come from other applications and may hold escape sequences.
std::string printable(std::string_view text);

/// How many columns the text takes: two for wide and full-width characters (Unicode Standard Annex 11), none
/// for combining marks, format characters and the later letters of a Hangul syllable, else one.
std::size_t displayWidth(std::string_view text);

enum class ElideAt { start, end };

/// The text, or what fits of it with "…" where it was cut, in at most `width` columns.
std::string elided(std::string_view text, std::size_t width, ElideAt side);

} // namespace tovrel::terminal_text
