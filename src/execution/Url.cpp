#include "execution/Url.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>

namespace tovrel {
namespace {

constexpr bool isLetter(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

constexpr bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

constexpr bool isHexDigit(char byte) {
    return isDigit(byte) || (byte >= 'a' && byte <= 'f') || (byte >= 'A' && byte <= 'F');
}

/// RFC 3986, section 2.3.
constexpr bool isUnreserved(char byte) {
    return isLetter(byte) || isDigit(byte) || std::string_view("-._~").find(byte) != std::string_view::npos;
}

/// RFC 3986, section 2.2.
constexpr bool isReserved(char byte) {
    return std::string_view(":/?#[]@!$&'()*+,;=").find(byte) != std::string_view::npos;
}

void appendEncoded(char byte, std::string& text) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    text += '%';
    text += digits[value >> 4U];
    text += digits[value & 0xFU];
}

} // namespace

std::optional<Url> Url::parse(const Text& text) {
    if (text.empty()) {
        return std::nullopt;
    }
    const std::string_view bytes = text.view();
    std::string encoded;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool isEncodedByte =
            bytes[i] == '%' && i + 2 < bytes.size() && isHexDigit(bytes[i + 1]) && isHexDigit(bytes[i + 2]);
        if (isUnreserved(bytes[i]) || isReserved(bytes[i]) || isEncodedByte) {
            encoded += bytes[i];
        } else {
            appendEncoded(bytes[i], encoded);
        }
    }
    return Url(std::move(encoded));
}

Url Url::ofFile(const Text& path) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path.utf8(), error);
    std::string encoded = "file://";
    for (const char byte : error ? path.utf8() : absolute.string()) {
        if (isUnreserved(byte) || byte == '/') {
            encoded += byte;
        } else {
            appendEncoded(byte, encoded);
        }
    }
    return Url(std::move(encoded));
}

bool Url::hasScheme() const {
    const std::string_view bytes = text_.view();
    const std::size_t colon = bytes.find(':');
    return colon != std::string_view::npos && colon > 0 && isLetter(bytes.front()) &&
           std::all_of(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(colon), [](char byte) {
               return isLetter(byte) || isDigit(byte) || byte == '+' || byte == '-' || byte == '.';
           });
}

} // namespace tovrel
