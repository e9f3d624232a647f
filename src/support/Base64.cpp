#include "support/Base64.h"

#include <cstddef>
#include <cstdint>

namespace tovrel {
namespace {

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr unsigned bitsPerDigit = 6;
constexpr unsigned bitsPerByte = 8;

} // namespace

std::string base64From(std::string_view bytes) {
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    std::uint32_t pending = 0;
    unsigned bits = 0;
    const auto writeDigit = [&](std::uint32_t digit) { text += alphabet[digit & 0x3FU]; };
    for (const char byte : bytes) {
        pending = pending << bitsPerByte | static_cast<unsigned char>(byte);
        for (bits += bitsPerByte; bits >= bitsPerDigit; bits -= bitsPerDigit) {
            writeDigit(pending >> (bits - bitsPerDigit));
        }
    }
    if (bits > 0) {
        writeDigit(pending << (bitsPerDigit - bits));
    }
    text.append((4 - text.size() % 4) % 4, '=');
    return text;
}

std::optional<std::string> bytesFromBase64(std::string_view text) {
    std::string bytes;
    std::uint32_t pending = 0;
    unsigned bits = 0;
    for (const char character : text.substr(0, text.find('='))) {
        const std::size_t digit = alphabet.find(character);
        if (digit == std::string_view::npos) {
            return std::nullopt;
        }
        pending = pending << bitsPerDigit | static_cast<std::uint32_t>(digit);
        bits += bitsPerDigit;
        if (bits >= bitsPerByte) {
            bits -= bitsPerByte;
            bytes += static_cast<char>(pending >> bits & 0xFFU);
        }
    }
    // Each sequence of bytes has one text only, so this refuses wrong padding, stray bits and missing digits.
    return base64From(bytes) == text ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace tovrel
