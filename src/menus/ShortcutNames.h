#pragma once

#include "support/Text.h"

namespace tovrel {

/// A shortcut's display text (see shortcutText()) spelled with the names that keys have on keyboards without
/// those glyphs, for people to read: "⌘⇧S" as "Ctrl+Shift+S". Command is the Ctrl key, ⌃ the Super key.
Text shortcutWithKeyNames(const Text& shortcut);

} // namespace tovrel
