#pragma once

#include <array>
#include <cstdint>

/// The virtual key codes that the program uses by name.
namespace tovrel::key_codes {
inline constexpr std::uint32_t p = 35;
inline constexpr std::uint32_t returnKey = 36;
inline constexpr std::uint32_t tab = 48;
inline constexpr std::uint32_t space = 49;
inline constexpr std::uint32_t deleteKey = 51; ///< Called Backspace on other keyboards.
inline constexpr std::uint32_t escape = 53;
/// The codes from `firstModifier` to `lastModifier` are those of the modifier keys themselves.
inline constexpr std::uint32_t firstModifier = 54;
inline constexpr std::uint32_t lastModifier = 63;
inline constexpr std::uint32_t keypadEnter = 76;
inline constexpr std::uint32_t f12 = 111;
inline constexpr std::uint32_t forwardDelete = 117;
inline constexpr std::uint32_t downArrow = 125;
inline constexpr std::uint32_t upArrow = 126;
/// Stands for a key without a known code. No key has it.
inline constexpr std::uint32_t unknown = 0xFFFF;
/// F1 to F20; function keys beyond have no code.
inline constexpr std::array<std::uint32_t, 20> functionKeys{122, 120, 99,  118, 96,  97,  98, 100, 101, 109,
                                                            103, f12, 105, 107, 113, 106, 64, 79,  80,  90};
} // namespace tovrel::key_codes
