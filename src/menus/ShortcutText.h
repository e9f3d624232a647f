#pragma once

#include <cstdint>

#include "support/Text.h"
#include "support/TextServices.h"

namespace tovrel {

/// The bits of "AXMenuItemCmdModifiers". The Command key is held unless `noCommand` is set.
namespace menu_modifiers {
inline constexpr std::int64_t shift = 1;
inline constexpr std::int64_t option = 2;
inline constexpr std::int64_t control = 4;
inline constexpr std::int64_t noCommand = 8;
} // namespace menu_modifiers

/// The display text of a menu item's key combination: the modifier glyphs, always in the order ⌘ ⇧ ⌥ ⌃, and
/// the key. The whole program uses only this form of a shortcut, so that two shortcuts compare as plain text.
///
/// `commandCharacter` is the "AXMenuItemCmdChar", not empty: a character, or one of the code points that
/// stand for a key without one (U+F700 the up arrow, U+F704 F1, …), which are shown by name. Anything else is
/// upper-cased. Unknown bits of `modifiers` are ignored.
Text shortcutText(const Text& commandCharacter, std::int64_t modifiers, const TextServices& textServices);

} // namespace tovrel
