#pragma once

#include <string>
#include <string_view>

/// Makes texts safe to write to a terminal. Titles come from other applications, keys and paths from
/// anywhere, and each may contain escape sequences or change the direction of its line.
///
/// Harmful characters are controls (C0, DEL, C1), line and paragraph separators, and the bidirectional
/// controls (Unicode Standard Annex 9, property Bidi_Control).
namespace tovrel {

/// The text on one line with harmful characters replaced: C0 controls and DEL by their pictures (U+2400…),
/// the rest and ill-formed UTF-8 by U+FFFD.
std::string printable(std::string_view text);

/// The same as `printable`, but keeps line feeds.
std::string printableLines(std::string_view text);

/// The same JSON document with harmful characters in its strings written as \u escapes, so that its whole
/// content is visible. White space between its values stays, including line feeds. `json` must be valid.
std::string printableJson(std::string_view json);

} // namespace tovrel
