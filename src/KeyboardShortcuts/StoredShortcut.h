#pragma once

#include <optional>

#include "model/Shortcut.h"
#include "support/Text.h"

namespace tovrel {

/// A shortcut as it is kept in the preferences: the JSON text {"carbonKeyCode":35,"carbonModifiers":768}.
[[nodiscard]] Text encodedShortcut(const Shortcut& shortcut);

/// Absent when the text is no such document, or its key code (0 … 65535) or modifiers (32 bits) are out of
/// range, because such a shortcut must not be registered.
[[nodiscard]] std::optional<Shortcut> decodedShortcut(const Text& text);

} // namespace tovrel
