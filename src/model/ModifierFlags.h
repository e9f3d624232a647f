#pragma once

#include <cstdint>

namespace tovrel {

/// The modifier keys of a key event, as a bit set.
using ModifierFlags = std::uint64_t;

/// The bits of the modifiers that belong to the platform-neutral virtual key codes. The platform decides
/// which physical key is which: on Linux Command is the Control key, Control is Super, Option is Alt.
namespace modifier_flags {
inline constexpr ModifierFlags capsLock = 0x10000;
inline constexpr ModifierFlags shift = 0x20000;
inline constexpr ModifierFlags control = 0x40000;
inline constexpr ModifierFlags option = 0x80000;
inline constexpr ModifierFlags command = 0x100000;
inline constexpr ModifierFlags help = 0x400000;
inline constexpr ModifierFlags function = 0x800000;
} // namespace modifier_flags

} // namespace tovrel
