#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/Text.h"

namespace tovrel {

/// Services for Unicode and the user's locale: folding, case mapping, transliteration and the order in which
/// titles are shown. Built once by the composition root, because the transliterator and the collator are
/// costly to open (tens of milliseconds); used from one thread.
class TextServices {
  public:
    /// Takes a locale such as "de_DE", "tr" or "sr-Latn"; an empty identifier means the environment's.
    /// An unknown locale behaves as the root locale does, and so do "C" and "POSIX", which say nothing about
    /// the language: ICU would order their titles by ASCII.
    explicit TextServices(std::string_view localeIdentifier = {});
    ~TextServices();
    TextServices(const TextServices&) = delete;
    TextServices& operator=(const TextServices&) = delete;

    /// The text without case distinctions and without the diacritics of Latin, Greek and Cyrillic letters;
    /// vowel signs, voicing marks and the like of other scripts stay. Case folds by the Unicode default full
    /// folding, in Turkish and Azerbaijani with the dotted and the dotless i kept apart.
    [[nodiscard]] std::string folded(std::string_view text) const;

    /// As `folded`, without the locale's own rules: the I of "Insert" folds to i everywhere.
    [[nodiscard]] std::string foldedByDefault(std::string_view text) const;

    /// Whether the two foldings of the text can differ. Cheap.
    [[nodiscard]] bool hasLocalFolding(std::string_view text) const;

    /// Unicode default lower-casing, the same in every locale.
    [[nodiscard]] std::string lowercased(std::string_view text) const;

    /// Lower-casing by the rules of the locale: the Turkish I becomes a dotless one.
    [[nodiscard]] std::string localizedLowercased(std::string_view text) const;

    /// Unicode default upper-casing of the whole string, the same in every locale.
    [[nodiscard]] std::string uppercased(std::string_view text) const;

    /// Whether transliteration to Latin can change the text at all: it holds a letter of another script.
    [[nodiscard]] static bool hasNonLatinScript(std::string_view text);

    /// The text of any script in Latin letters (ICU's Any-Latin), e.g. "Файл" as "Fajl"; it may carry
    /// diacritics. Absent when the transliteration is not available.
    [[nodiscard]] std::optional<std::string> transliteratedToLatin(std::string_view text) const;

    /// The extended grapheme clusters (Unicode Standard Annex 29) of a text, what a user perceives as its
    /// characters, as views into it.
    [[nodiscard]] std::vector<std::string_view> graphemeClusters(std::string_view text) const;

    /// The text in normalization form C.
    [[nodiscard]] std::string composed(std::string_view text) const;

    /// Whether `left` is shown strictly before `right`: case-insensitive, by the locale's rules.
    [[nodiscard]] bool isOrderedBefore(const Text& left, const Text& right) const;

    /// Bytes whose order (as unsigned bytes) is that of `isOrderedBefore`; equal when neither comes first.
    [[nodiscard]] std::string collationKey(const Text& text) const;

  private:
    struct Implementation;
    std::unique_ptr<Implementation> implementation_;
};

} // namespace tovrel
