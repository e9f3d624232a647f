#include "support/TextServices.h"

#include <optional>

#include <unicode/brkiter.h>
#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/translit.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/uscript.h>
#include <unicode/utext.h>
#include <unicode/utf16.h>

#include "support/Fatal.h"
#include "support/Utf8.h"

namespace tovrel {
namespace {

icu::UnicodeString utf16From(std::string_view utf8) {
    return icu::UnicodeString::fromUTF8({utf8.data(), static_cast<std::int32_t>(utf8.size())});
}

std::string utf8From(const icu::UnicodeString& utf16) {
    std::string utf8;
    utf16.toUTF8String(utf8);
    return utf8;
}

char asciiLower(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

char asciiUpper(char byte) {
    return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
}

template <typename Map>
std::string mapped(std::string_view text, const Map& map) {
    std::string result(text);
    for (char& byte : result) {
        byte = map(byte);
    }
    return result;
}

bool isMark(UChar32 codePoint) {
    return (U_GET_GC_MASK(codePoint) & U_GC_M_MASK) != 0;
}

UScriptCode scriptOf(UChar32 codePoint) {
    UErrorCode status = U_ZERO_ERROR;
    return uscript_getScript(codePoint, &status);
}

/// Whether folding removes diacritics from the letter, which depends on its script.
bool hasRemovableDiacritics(UChar32 base) {
    const UScriptCode script = scriptOf(base);
    return script == USCRIPT_LATIN || script == USCRIPT_GREEK || script == USCRIPT_CYRILLIC;
}

/// Drops the marks that follow a Latin, Greek or Cyrillic letter; `decomposed` is in form D.
icu::UnicodeString withoutDiacritics(const icu::UnicodeString& decomposed) {
    icu::UnicodeString result;
    bool dropsMarks = false;
    for (std::int32_t i = 0; i < decomposed.length();) {
        const UChar32 codePoint = decomposed.char32At(i);
        i += U16_LENGTH(codePoint);
        if (!isMark(codePoint)) {
            dropsMarks = hasRemovableDiacritics(codePoint);
        } else if (dropsMarks) {
            continue;
        }
        result.append(codePoint);
    }
    return result;
}

/// The clusters of a text if every code point is a cluster, as in nearly all texts; absent when that is
/// unsure.
std::optional<std::vector<std::string_view>> simpleClusters(std::string_view text) {
    std::vector<std::string_view> clusters;
    clusters.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        const auto codePoint = static_cast<UChar32>(nextCodePoint(text, position));
        // A whole Hangul syllable is a cluster unless a single jamo follows.
        switch (u_getIntPropertyValue(codePoint, UCHAR_GRAPHEME_CLUSTER_BREAK)) {
        case U_GCB_OTHER:
        case U_GCB_LV:
        case U_GCB_LVT:
            clusters.push_back(text.substr(start, position - start));
            break;
        default:
            return std::nullopt;
        }
    }
    return clusters;
}

/// Whether this is the locale that ICU makes from "C", "POSIX", "C.UTF-8" or no locale at all.
bool isPosix(const icu::Locale& locale) {
    return std::string_view(locale.getVariant()) == "POSIX" || std::string_view(locale.getLanguage()) == "c";
}

icu::Locale localeNamed(std::string_view identifier) {
    const icu::Locale locale = identifier.empty()
                                   ? icu::Locale::getDefault()
                                   : icu::Locale::createCanonical(std::string(identifier).c_str());
    return isPosix(locale) ? icu::Locale::getRoot() : locale;
}

bool keepsDottedAndDotlessIApart(const icu::Locale& locale) {
    const std::string_view language = locale.getLanguage();
    return language == "tr" || language == "az";
}

} // namespace

struct TextServices::Implementation {
    explicit Implementation(std::string_view localeIdentifier)
        : locale(localeNamed(localeIdentifier)), turkic(keepsDottedAndDotlessIApart(locale)) {
        UErrorCode status = U_ZERO_ERROR;
        formC = icu::Normalizer2::getNFCInstance(status);
        formD = icu::Normalizer2::getNFDInstance(status);
        collator.reset(icu::Collator::createInstance(locale, status));
        clusters.reset(icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
        if (U_FAILURE(status)) {
            fatal("the Unicode data of the ICU library is missing");
        }
        collator->setStrength(icu::Collator::SECONDARY);
        collator->setAttribute(UCOL_NORMALIZATION_MODE, UCOL_ON, status);
    }

    /// `options` are those of ICU's case folding.
    [[nodiscard]] std::string folded(std::string_view text, std::uint32_t options) const {
        UErrorCode status = U_ZERO_ERROR;
        // The text is composed first, because a decomposed İ must fold as this letter, not as an I with a
        // mark.
        icu::UnicodeString folded = formC->normalize(utf16From(text), status);
        folded.foldCase(options);
        const icu::UnicodeString stripped = withoutDiacritics(formD->normalize(folded, status));
        const icu::UnicodeString result = formC->normalize(stripped, status);
        if (U_FAILURE(status)) {
            fatal("out of memory while folding a text");
        }
        return utf8From(result);
    }

    icu::Locale locale;
    bool turkic;
    const icu::Normalizer2* formC = nullptr;
    const icu::Normalizer2* formD = nullptr;
    std::unique_ptr<icu::Collator> collator;
    std::unique_ptr<icu::BreakIterator> clusters;
    /// Opened at first use; contains null if it cannot be opened.
    std::optional<std::unique_ptr<icu::Transliterator>> toLatin;
};

TextServices::TextServices(std::string_view localeIdentifier)
    : implementation_(std::make_unique<Implementation>(localeIdentifier)) {}

TextServices::~TextServices() = default;

std::string TextServices::folded(std::string_view text) const {
    return hasLocalFolding(text) ? implementation_->folded(text, U_FOLD_CASE_EXCLUDE_SPECIAL_I)
                                 : foldedByDefault(text);
}

std::string TextServices::foldedByDefault(std::string_view text) const {
    return isAscii(text) ? mapped(text, asciiLower) : implementation_->folded(text, U_FOLD_CASE_DEFAULT);
}

bool TextServices::hasLocalFolding(std::string_view text) const {
    // The Turkic folding differs from the default one only in I and İ, and both turn İ into an i, with or
    // without an extra dot.
    return implementation_->turkic && text.find('I') != std::string_view::npos;
}

std::string TextServices::lowercased(std::string_view text) const {
    if (isAscii(text)) {
        return mapped(text, asciiLower);
    }
    return utf8From(utf16From(text).toLower(icu::Locale::getRoot()));
}

std::string TextServices::localizedLowercased(std::string_view text) const {
    if (isAscii(text) && !implementation_->turkic) {
        return mapped(text, asciiLower);
    }
    return utf8From(utf16From(text).toLower(implementation_->locale));
}

std::string TextServices::uppercased(std::string_view text) const {
    if (isAscii(text)) {
        return mapped(text, asciiUpper);
    }
    return utf8From(utf16From(text).toUpper(icu::Locale::getRoot()));
}

bool TextServices::hasNonLatinScript(std::string_view text) {
    if (isAscii(text)) {
        return false;
    }
    for (std::size_t position = 0; position < text.size();) {
        const UScriptCode script = scriptOf(static_cast<UChar32>(nextCodePoint(text, position)));
        if (script != USCRIPT_LATIN && script != USCRIPT_COMMON && script != USCRIPT_INHERITED) {
            return true;
        }
    }
    return false;
}

std::optional<std::string> TextServices::transliteratedToLatin(std::string_view text) const {
    auto& toLatin = implementation_->toLatin;
    if (!toLatin) {
        UErrorCode status = U_ZERO_ERROR;
        toLatin.emplace(icu::Transliterator::createInstance("Any-Latin", UTRANS_FORWARD, status));
        if (U_FAILURE(status)) {
            toLatin->reset();
        }
    }
    if (!*toLatin) {
        return std::nullopt;
    }
    icu::UnicodeString utf16 = utf16From(text);
    (*toLatin)->transliterate(utf16);
    return utf8From(utf16);
}

std::vector<std::string_view> TextServices::graphemeClusters(std::string_view text) const {
    if (std::optional<std::vector<std::string_view>> simple = simpleClusters(text)) {
        return *std::move(simple);
    }
    UErrorCode status = U_ZERO_ERROR;
    UText opened = UTEXT_INITIALIZER;
    utext_openUTF8(&opened, text.data(), static_cast<std::int64_t>(text.size()), &status);
    icu::BreakIterator& iterator = *implementation_->clusters;
    iterator.setText(&opened, status);
    std::vector<std::string_view> clusters;
    if (U_SUCCESS(status)) {
        std::int32_t start = iterator.first();
        for (std::int32_t end = iterator.next(); end != icu::BreakIterator::DONE; end = iterator.next()) {
            clusters.push_back(
                text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start)));
            start = end;
        }
    }
    utext_close(&opened);
    return clusters;
}

std::string TextServices::composed(std::string_view text) const {
    UErrorCode status = U_ZERO_ERROR;
    std::string result = utf8From(implementation_->formC->normalize(utf16From(text), status));
    return U_SUCCESS(status) ? result : std::string(text);
}

bool TextServices::isOrderedBefore(const Text& left, const Text& right) const {
    UErrorCode status = U_ZERO_ERROR;
    const auto piece = [](const Text& text) {
        return icu::StringPiece(text.view().data(), static_cast<std::int32_t>(text.view().size()));
    };
    return implementation_->collator->compareUTF8(piece(left), piece(right), status) == UCOL_LESS;
}

std::string TextServices::collationKey(const Text& text) const {
    const icu::UnicodeString utf16 = utf16From(text.view());
    std::string key(64, '\0');
    for (;;) {
        const auto capacity = static_cast<std::int32_t>(key.size());
        const std::int32_t size = implementation_->collator->getSortKey(
            utf16, reinterpret_cast<std::uint8_t*>(key.data()), capacity);
        key.resize(static_cast<std::size_t>(size));
        if (size <= capacity) {
            return key;
        }
    }
}

} // namespace tovrel
