#pragma once

#include <string>
#include <string_view>

/// Makes texts safe to be written to a terminal. Titles come from other applications, keys and paths from
/// anywhere, and each may hold escape sequences or turn the direction of the line it stands in.
///
/// Harmful characters are controls (C0, DEL, C1), line and paragraph separators, and the bidirectional
/// controls (Unicode Standard Annex 9, property Bidi_Control).
namespace tovrel {

/// The text on one line with everything harmful replaced: C0 controls and DEL by their pictures (U+2400…),
/// the rest and ill-formed UTF-8 by U+FFFD.
std::string printable(std::string_view text);

/// The same as `printable`, with the line feeds left as they are.
std::string printableLines(std::string_view text);

/// The same JSON document with everything harmful in its strings written as \u escapes, so that it shows all
/// that it holds. Line feeds and other white space between its values stay. `json` must be valid.
std::string printableJson(std::string_view json);

} // namespace tovrel
