#include "support/Text.h"

#include <algorithm>
#include <cstdint>

#include <unicode/bytestream.h>
#include <unicode/normalizer2.h>
#include <unicode/stringpiece.h>
#include <unicode/uchar.h>

#include "support/Fatal.h"
#include "support/Utf8.h"

namespace tovrel {
namespace {

icu::StringPiece piece(std::string_view bytes) {
    return {bytes.data(), static_cast<std::int32_t>(bytes.size())};
}

const icu::Normalizer2& formC() {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* normalizer = icu::Normalizer2::getNFCInstance(status);
    if (U_FAILURE(status)) {
        fatal("the Unicode normalization data is missing");
    }
    return *normalizer;
}

bool isFormC(std::string_view bytes) {
    if (isAscii(bytes)) {
        return true;
    }
    UErrorCode status = U_ZERO_ERROR;
    return formC().isNormalizedUTF8(piece(bytes), status) != 0 && U_SUCCESS(status);
}

/// The text in normalization form C: a view of the text itself if it is already in that form, else of
/// `buffer`.
std::string_view inFormC(const Text& text, std::string& buffer) {
    if (isFormC(text.view())) {
        return text.view();
    }
    UErrorCode status = U_ZERO_ERROR;
    icu::StringByteSink<std::string> sink(&buffer);
    formC().normalizeUTF8(0, piece(text.view()), sink, nullptr, status);
    return U_SUCCESS(status) ? std::string_view(buffer) : text.view();
}

std::string repaired(std::string_view bytes) {
    std::string result;
    result.reserve(bytes.size() + 3);
    for (std::size_t position = 0; position < bytes.size();) {
        const std::size_t start = position;
        if (nextCodePoint(bytes, position) == illFormedSequence) {
            result += "\xEF\xBF\xBD"; // U+FFFD
        } else {
            result.append(bytes, start, position - start);
        }
    }
    return result;
}

bool isWhiteSpace(char32_t codePoint) {
    return u_isUWhiteSpace(static_cast<UChar32>(codePoint)) != 0;
}

} // namespace

Text::Text(std::string utf8) : utf8_(std::move(utf8)) {
    if (!isWellFormedUtf8(utf8_)) {
        utf8_ = repaired(utf8_);
    }
}

Text::Text(std::string_view utf8) : Text(std::string(utf8)) {}

Text::Text(const char* utf8) : Text(std::string(utf8)) {}

bool operator==(const Text& left, const Text& right) {
    if (left.utf8_ == right.utf8_) {
        return true;
    }
    if (isAscii(left.utf8_) && isAscii(right.utf8_)) {
        return false;
    }
    std::string leftBuffer;
    std::string rightBuffer;
    return inFormC(left, leftBuffer) == inFormC(right, rightBuffer);
}

std::weak_ordering operator<=>(const Text& left, const Text& right) {
    std::string leftBuffer;
    std::string rightBuffer;
    // The bytes of UTF-8 have the order of their code points; std::string_view compares them as unsigned.
    const int order = inFormC(left, leftBuffer).compare(inFormC(right, rightBuffer));
    return order <=> 0;
}

std::size_t Text::hash() const {
    std::string buffer;
    return std::hash<std::string_view>{}(inFormC(*this, buffer));
}

Text joined(const std::vector<Text>& texts, std::string_view separator) {
    std::size_t size = 0;
    for (const Text& text : texts) {
        size += text.view().size() + separator.size();
    }
    std::string result;
    result.reserve(size);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i > 0) {
            result += separator;
        }
        result += texts[i].view();
    }
    return result;
}

Text trimmed(const Text& text) {
    const std::string_view bytes = text.view();
    std::size_t start = bytes.size();
    std::size_t end = 0;
    for (std::size_t position = 0; position < bytes.size();) {
        const std::size_t before = position;
        if (!isWhiteSpace(nextCodePoint(bytes, position))) {
            start = std::min(start, before);
            end = position;
        }
    }
    return end > start ? bytes.substr(start, end - start) : std::string_view();
}

} // namespace tovrel
