#pragma once

#include <optional>
#include <string_view>

namespace tovrel {

/// The character that stands for a key in a menu attribute: the key's own character, a letter in lower case,
/// or a function-key character (U+F700…, U+007F for Backspace).
///
/// `name` is an X keysym's name ("comma", "Page_Up", "F1") or a name that Qt writes ("PgUp", "Esc", "F1"); a
/// single character names itself in both. Absent for a name that is unknown or has no such character.
std::optional<char32_t> characterOfKeysymName(std::string_view name);
std::optional<char32_t> characterOfQtKeyName(std::string_view name);

} // namespace tovrel
