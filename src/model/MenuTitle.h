#pragma once

#include <cstddef>
#include <string_view>

#include "support/Text.h"

namespace tovrel {

/// The longest title in bytes. What people read in a menu is far shorter; every item below a menu carries the
/// menu's title, so that a longer one would cost its length many times over.
inline constexpr std::size_t longestMenuTitle = 1024;

/// Of what an application gives as a name so many bytes are looked at for the title in it: the rest is white
/// space around it, marks within it, or too long.
inline constexpr std::size_t longestMenuName = 4 * longestMenuTitle;

/// The title in an application's own name for a menu or an item: without white space at its ends (some
/// programs pad their names), and cut behind the last whole grapheme cluster within `longestMenuTitle`.
Text menuTitle(std::string_view name);

/// A title as it is, only cut likewise.
Text cutMenuTitle(const Text& title);

} // namespace tovrel
