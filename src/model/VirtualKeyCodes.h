#pragma once

#include <cstdint>

/// The virtual key codes the program knows by name.
namespace tovrel::key_codes {
inline constexpr std::uint32_t p = 35;
inline constexpr std::uint32_t returnKey = 36;
inline constexpr std::uint32_t escape = 53;
inline constexpr std::uint32_t keypadEnter = 76;
inline constexpr std::uint32_t downArrow = 125;
inline constexpr std::uint32_t upArrow = 126;
} // namespace tovrel::key_codes
