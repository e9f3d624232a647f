#include "app/terminal/TerminalText.h"

#include <vector>

#include <unicode/uchar.h>

#include "support/Utf8.h"

namespace tovrel::terminal_text {
namespace {

constexpr std::string_view ellipsis = "…";

std::size_t widthOf(char32_t codePoint) {
    const auto character = static_cast<UChar32>(codePoint);
    switch (u_charType(character)) {
    case U_NON_SPACING_MARK:
    case U_ENCLOSING_MARK:
    case U_FORMAT_CHAR:
        return 0;
    default:
        break;
    }
    const auto syllablePart = u_getIntPropertyValue(character, UCHAR_HANGUL_SYLLABLE_TYPE);
    if (syllablePart == U_HST_VOWEL_JAMO || syllablePart == U_HST_TRAILING_JAMO) {
        return 0;
    }
    const auto eastAsianWidth = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
    return eastAsianWidth == U_EA_WIDE || eastAsianWidth == U_EA_FULLWIDTH ? 2 : 1;
}

/// The start and the width of one character.
struct Character {
    std::size_t start;
    std::size_t width;
};

std::vector<Character> charactersOf(std::string_view text) {
    std::vector<Character> characters;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        const char32_t codePoint = nextCodePoint(text, position);
        characters.push_back({start, codePoint == illFormedSequence ? 1 : widthOf(codePoint)});
    }
    return characters;
}

/// The length in bytes of the longest beginning that takes at most `width` columns, marks included.
std::size_t beginningOfWidth(std::string_view text, std::size_t width) {
    for (const Character& character : charactersOf(text)) {
        if (character.width > width) {
            return character.start;
        }
        width -= character.width;
    }
    return text.size();
}

/// The start of the longest ending that takes at most `width` columns; never at a combining mark.
std::size_t endingOfWidth(std::string_view text, std::size_t width) {
    const std::vector<Character> characters = charactersOf(text);
    std::size_t start = text.size();
    std::size_t taken = 0;
    for (auto character = characters.rbegin(); character != characters.rend(); ++character) {
        taken += character->width;
        if (taken > width) {
            break;
        }
        if (character->width > 0) {
            start = character->start;
        }
    }
    return start;
}

} // namespace

std::size_t displayWidth(std::string_view text) {
    std::size_t width = 0;
    for (const Character& character : charactersOf(text)) {
        width += character.width;
    }
    return width;
}

std::string elided(std::string_view text, std::size_t width, ElideAt side) {
    if (displayWidth(text) <= width) {
        return std::string(text);
    }
    if (width == 0) {
        return {};
    }
    if (side == ElideAt::start) {
        return std::string(ellipsis).append(text.substr(endingOfWidth(text, width - 1)));
    }
    return std::string(text.substr(0, beginningOfWidth(text, width - 1))).append(ellipsis);
}

} // namespace tovrel::terminal_text
