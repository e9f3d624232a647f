#pragma once

#include <cstddef>
#include <string_view>

namespace tovrel {

/// The value `nextCodePoint` returns for an ill-formed sequence; no code point has it.
inline constexpr char32_t illFormedSequence = 0xFFFFFFFF;

/// Decodes the code point at `position`, which must lie before the end, and moves `position` past it. Of an
/// ill-formed sequence it skips the longest prefix of a well-formed one, at least one byte, as Unicode
/// recommends for replacement (The Unicode Standard 15, section 3.9).
char32_t nextCodePoint(std::string_view bytes, std::size_t& position);

/// Whether every byte is ASCII.
bool isAscii(std::string_view bytes);

/// Whether the bytes are well-formed UTF-8.
bool isWellFormedUtf8(std::string_view bytes);

} // namespace tovrel
