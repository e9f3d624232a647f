#pragma once

#include "support/Text.h"

namespace tovrel {

/// A shortcut's display text (see shortcutText()) with the key names of keyboards without those glyphs: "⌘⇧S"
/// becomes "Ctrl+Shift+S". Command is the Ctrl key, ⌃ the Super key.
Text shortcutWithKeyNames(const Text& shortcut);

/// Does the same for a single key cap (see keycaps()): "⌘" becomes "Ctrl", "⌦" becomes "Delete". Arrows stay
/// arrows, as on keyboards.
Text keycapWithKeyName(const Text& keycap);

} // namespace tovrel
