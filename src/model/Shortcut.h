#pragma once

#include <compare>
#include <cstdint>

#include "model/ModifierFlags.h"

namespace tovrel {

/// A key combination: a virtual key code and the modifiers held with it, in the encoding of
/// `carbon_modifiers`.
struct Shortcut {
    std::int64_t carbonKeyCode = 0;
    std::int64_t carbonModifiers = 0;

    friend auto operator<=>(const Shortcut&, const Shortcut&) = default;
};

/// The bits of `Shortcut::carbonModifiers`.
namespace carbon_modifiers {
inline constexpr std::int64_t command = 0x100;
inline constexpr std::int64_t shift = 0x200;
inline constexpr std::int64_t option = 0x800;
inline constexpr std::int64_t control = 0x1000;
inline constexpr std::int64_t function = 0x20000;
} // namespace carbon_modifiers

/// Converts the modifiers to the other encoding. Bits other than the five are dropped.
[[nodiscard]] ModifierFlags modifierFlags(std::int64_t carbonModifiers);
[[nodiscard]] std::int64_t carbonModifiers(ModifierFlags flags);

} // namespace tovrel
