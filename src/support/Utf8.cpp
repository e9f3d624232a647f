#include "support/Utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace tovrel {
namespace {

unsigned char byteAt(std::string_view bytes, std::size_t position) {
    return static_cast<unsigned char>(bytes[position]);
}

struct Lead {
    int trailCount;        ///< -1: no lead byte.
    unsigned char lowest;  ///< Bounds of the first trail byte: they exclude overlong forms,
    unsigned char highest; ///< surrogates and values above U+10FFFF.
};

Lead leadOf(unsigned char byte) {
    if (byte >= 0xC2 && byte <= 0xDF) {
        return {1, 0x80, 0xBF};
    }
    if (byte >= 0xE0 && byte <= 0xEF) {
        const unsigned char lowest = byte == 0xE0 ? 0xA0 : 0x80;
        const unsigned char highest = byte == 0xED ? 0x9F : 0xBF;
        return {2, lowest, highest};
    }
    if (byte >= 0xF0 && byte <= 0xF4) {
        const unsigned char lowest = byte == 0xF0 ? 0x90 : 0x80;
        const unsigned char highest = byte == 0xF4 ? 0x8F : 0xBF;
        return {3, lowest, highest};
    }
    return {-1, 0, 0};
}

} // namespace

char32_t nextCodePoint(std::string_view bytes, std::size_t& position) {
    const unsigned char first = byteAt(bytes, position++);
    if (first < 0x80) {
        return first;
    }
    const Lead lead = leadOf(first);
    if (lead.trailCount < 0) {
        return illFormedSequence;
    }
    char32_t codePoint = first & (0x3FU >> lead.trailCount);
    for (int i = 0; i < lead.trailCount; ++i) {
        const unsigned char lowest = i == 0 ? lead.lowest : 0x80;
        const unsigned char highest = i == 0 ? lead.highest : 0xBF;
        if (position >= bytes.size() || byteAt(bytes, position) < lowest ||
            byteAt(bytes, position) > highest) {
            return illFormedSequence;
        }
        codePoint = codePoint << 6U | (byteAt(bytes, position++) & 0x3FU);
    }
    return codePoint;
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
