#pragma once

#include <cstdint>

#include "model/ModifierFlags.h"

namespace tovrel {

/// Puts key presses into the desktop's input stream, as if they had been typed.
class KeyEventPoster {
  public:
    virtual ~KeyEventPoster() = default;

    /// Whether this desktop lets keys be posted; some let no program do so. Asked before each use, because
    /// the answer can change.
    [[nodiscard]] virtual bool canPost() const = 0;

    /// Posts one press and one release of a key with exactly these modifiers held. Keys that the user holds
    /// physically are accounted for, and afterwards each modifier is pressed or released as the user holds
    /// it. False when the key cannot be posted; then nothing was.
    virtual bool postKeyPress(std::uint16_t keyCode, ModifierFlags flags) = 0;
};

} // namespace tovrel
