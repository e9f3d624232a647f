#include "support/GraphemeClusters.h"

#include <algorithm>
#include <cstdint>
#include <memory>

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/utext.h>

namespace tovrel {
namespace {

/// The iterator is kept, because it is costly to make and texts may be cut thousands of times in a row. Null
/// without ICU's data.
icu::BreakIterator* clusterIterator() {
    static thread_local UErrorCode status = U_ZERO_ERROR;
    static thread_local const std::unique_ptr<icu::BreakIterator> iterator(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    return U_SUCCESS(status) ? iterator.get() : nullptr;
}

/// The last cluster boundary up to `place`, which is within the text; 0 when there is none.
std::size_t clusterBoundary(std::string_view text, std::size_t place) {
    icu::BreakIterator* iterator = clusterIterator();
    UErrorCode status = U_ZERO_ERROR;
    UText opened = UTEXT_INITIALIZER;
    utext_openUTF8(&opened, text.data(), static_cast<std::int64_t>(text.size()), &status);
    std::int32_t boundary = 0;
    if (iterator != nullptr && U_SUCCESS(status)) {
        iterator->setText(&opened, status);
        boundary = U_SUCCESS(status) ? iterator->preceding(static_cast<std::int32_t>(place + 1)) : 0;
    }
    utext_close(&opened);
    return static_cast<std::size_t>(std::max(boundary, 0));
}

std::size_t codePointBoundary(std::string_view text, std::size_t place) {
    while (place > 0 && (static_cast<unsigned char>(text[place]) & 0xC0U) == 0x80U) {
        --place;
    }
    return place;
}

} // namespace

std::string_view wholeClusters(std::string_view text, std::size_t maximumBytes) {
    if (text.size() <= maximumBytes) {
        return text;
    }
    // The next few bytes decide whether a cluster ends at a place.
    constexpr std::size_t context = 64;
    const std::string_view start = text.substr(0, maximumBytes + context);
    const std::size_t end = clusterBoundary(start, maximumBytes);
    return text.substr(0, end > 0 ? end : codePointBoundary(text, maximumBytes));
}

} // namespace tovrel
