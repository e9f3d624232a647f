#pragma once

#include <cstdint>

#include "model/ModifierFlags.h"

namespace tovrel {

/// Puts key presses into the desktop's input stream, as if they had been typed.
class KeyEventPoster {
  public:
    virtual ~KeyEventPoster() = default;

    /// Whether keys can be posted on this desktop at all; asked before each use, for that can change. Some
    /// let no program do it.
    [[nodiscard]] virtual bool canPost() const = 0;

    /// Posts one press and one release of a key with exactly these modifiers held. Keys that the user holds
    /// physically are accounted for, and no modifier is left pressed or released that the user does not hold
    /// so. False when the key cannot be posted; then nothing was.
    virtual bool postKeyPress(std::uint16_t keyCode, ModifierFlags flags) = 0;
};

} // namespace tovrel
