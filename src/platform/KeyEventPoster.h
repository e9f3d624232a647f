#pragma once

#include <cstdint>

#include "model/ModifierFlags.h"

namespace tovrel {

/// Puts key presses into the desktop's input stream, as if they had been typed.
class KeyEventPoster {
  public:
    virtual ~KeyEventPoster() = default;

    /// Posts one press and one release of a key with exactly these modifiers held. Keys that the user holds
    /// physically are accounted for, and no modifier is left pressed or released that the user does not hold
    /// so. False when the key cannot be posted; then nothing was.
    virtual bool postKeyPress(std::uint16_t keyCode, ModifierFlags flags) = 0;
};

} // namespace tovrel
