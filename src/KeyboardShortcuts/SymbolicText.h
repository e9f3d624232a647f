#pragma once

#include <functional>
#include <optional>

#include "model/Shortcut.h"
#include "support/Text.h"
#include "support/TextServices.h"

namespace tovrel {

/// What the current keyboard layout types for a key without modifiers; absent when that is nothing.
using CharacterForKeyCode = std::function<std::optional<Text>(std::uint32_t keyCode)>;

/// A shortcut in glyphs: ⌃ ⌥ ⇧ ⌘ in this order, the globe for Function, then the key. A menu item's shortcut
/// text has another order. `spaceKey` is the Space key's name in the user's language, in lower case.
[[nodiscard]] Text symbolicText(const Shortcut& shortcut, const CharacterForKeyCode& characterForKeyCode,
                                const TextServices& textServices, const Text& spaceKey = "space");

} // namespace tovrel
