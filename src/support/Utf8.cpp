#include "support/Utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include <unicode/utf8.h>

namespace tovrel {

char32_t nextCodePoint(std::string_view bytes, std::size_t& position) {
    const auto* units = reinterpret_cast<const std::uint8_t*>(bytes.data());
    UChar32 codePoint = 0;
    U8_NEXT(units, position, bytes.size(), codePoint);
    return codePoint < 0 ? illFormedSequence : static_cast<char32_t>(codePoint);
}

bool isAscii(std::string_view bytes) {
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    std::size_t position = 0;
    for (; position + sizeof(std::uint64_t) <= bytes.size(); position += sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data() + position, sizeof word);
        if ((word & highBits) != 0) {
            return false;
        }
    }
    return std::all_of(bytes.begin() + static_cast<std::ptrdiff_t>(position), bytes.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

bool isWellFormedUtf8(std::string_view bytes) {
    if (isAscii(bytes)) {
        return true;
    }
    for (std::size_t position = 0; position < bytes.size();) {
        if (nextCodePoint(bytes, position) == illFormedSequence) {
            return false;
        }
    }
    return true;
}

} // namespace tovrel
