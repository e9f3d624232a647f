#pragma once

#include <cstdint>
#include <optional>

#include "model/ModifierFlags.h"
#include "support/Text.h"

namespace tovrel {

enum class KeyEventType { keyDown, keyUp };

/// One press or release of a key.
struct KeyEvent {
    KeyEventType type = KeyEventType::keyDown;
    std::uint32_t keyCode = 0; ///< Virtual key code, the same on every platform and layout: 35 is P.
    /// The characters that the current layout gives the key without modifiers other than Shift; absent when
    /// there are none.
    std::optional<Text> charactersIgnoringModifiers;
    ModifierFlags modifierFlags = 0;
};

} // namespace tovrel
