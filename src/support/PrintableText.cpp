#include "support/PrintableText.h"

#include <unicode/uchar.h>

#include "support/Utf8.h"

namespace tovrel {
namespace {

constexpr std::string_view replacementCharacter = "\uFFFD";
constexpr char32_t deleteCharacter = 0x7F;

bool isHarmful(char32_t codePoint) {
    const auto character = static_cast<UChar32>(codePoint);
    switch (u_charType(character)) {
    case U_CONTROL_CHAR:
    case U_LINE_SEPARATOR:
    case U_PARAGRAPH_SEPARATOR:
        return true;
    default:
        return u_hasBinaryProperty(character, UCHAR_BIDI_CONTROL) != 0;
    }
}

/// U+2400 to U+241F are the pictures of U+0000 to U+001F, U+2421 is that of U+007F.
std::string pictureOf(char32_t control) {
    const auto offset = static_cast<unsigned char>(control == deleteCharacter ? 0x21 : control);
    return {'\xE2', '\x90', static_cast<char>(0x80 + offset)};
}

std::string shown(char32_t codePoint) {
    return codePoint <= deleteCharacter ? pictureOf(codePoint) : std::string(replacementCharacter);
}

/// "\u" and four digits, which suffice because all harmful characters are below U+10000.
std::string escaped(char32_t codePoint) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string escape = "\\u";
    for (const unsigned shift : {12U, 8U, 4U, 0U}) {
        escape += digits[codePoint >> shift & 0xFU];
    }
    return escape;
}

bool isPlainAscii(std::string_view text) {
    for (const char byte : text) {
        if (byte < ' ' || byte > '~') {
            return false;
        }
    }
    return true;
}

/// The text with `replace(code point)` for each code point that `isReplaced`.
template <typename IsReplaced, typename Replace>
std::string replaced(std::string_view text, const IsReplaced& isReplaced, const Replace& replace) {
    if (isPlainAscii(text)) {
        return std::string(text);
    }
    std::string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        const char32_t codePoint = nextCodePoint(text, position);
        if (isReplaced(codePoint)) {
            result += replace(codePoint);
        } else {
            result.append(text, start, position - start);
        }
    }
    return result;
}

} // namespace

std::string printable(std::string_view text) {
    return replaced(
        text, [](char32_t codePoint) { return codePoint == illFormedSequence || isHarmful(codePoint); },
        shown);
}

std::string printableLines(std::string_view text) {
    return replaced(
        text,
        [](char32_t codePoint) {
            return codePoint == illFormedSequence || (codePoint != '\n' && isHarmful(codePoint));
        },
        shown);
}

std::string printableJson(std::string_view json) {
    // The writer has escaped control characters below U+007F within strings; between values they are white
    // space.
    return replaced(
        json, [](char32_t codePoint) { return codePoint >= deleteCharacter && isHarmful(codePoint); },
        escaped);
}

} // namespace tovrel
