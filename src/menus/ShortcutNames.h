#pragma once

#include "support/Text.h"

namespace tovrel {

/// A shortcut's display text (see shortcutText()) spelled with the names that keys have on keyboards without
/// those glyphs, for people to read: "⌘⇧S" as "Ctrl+Shift+S". Command is the Ctrl key, ⌃ the Super key.
Text shortcutWithKeyNames(const Text& shortcut);

/// The same for a single key cap (see keycaps()): "⌘" as "Ctrl", "⌦" as "Delete". Arrows stay arrows, which
/// is what keyboards show.
Text keycapWithKeyName(const Text& keycap);

} // namespace tovrel
