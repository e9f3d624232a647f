#pragma once

#include <cstddef>
#include <string_view>

#include "support/Text.h"

namespace tovrel {

/// The longest title in bytes. Real titles are far shorter. Every item below a menu carries the menu's title,
/// so a longer title would cost its length many times over.
inline constexpr std::size_t longestMenuTitle = 1024;

/// The number of bytes of a name that are examined for a title. The rest is white space around the title,
/// marks within it, or too long.
inline constexpr std::size_t longestMenuName = 4 * longestMenuTitle;

/// Makes the title from an application's own name for a menu or an item: removes white space at its ends
/// (some programs pad their names), and cuts it after the last whole grapheme cluster within
/// `longestMenuTitle`.
Text menuTitle(std::string_view name);

/// Cuts a title in the same way and changes nothing else.
Text cutMenuTitle(const Text& title);

} // namespace tovrel
