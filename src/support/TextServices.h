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
    /// Takes a locale such as "de_DE", "tr" or "sr-Latn"; an empty identifier means the environment's. An
    /// unknown locale behaves like the root locale. So do "C" and "POSIX", which name no language; ICU would
    /// order their titles by ASCII.
    explicit TextServices(std::string_view localeIdentifier = {});
    ~TextServices();
    TextServices(const TextServices&) = delete;
    TextServices& operator=(const TextServices&) = delete;

    /// The text without case distinctions and without the diacritics of Latin, Greek and Cyrillic letters;
    /// vowel signs, voicing marks and similar marks of other scripts stay. Case is folded by the Unicode
    /// default full folding; in Turkish and Azerbaijani the dotted and the dotless i stay distinct.
    [[nodiscard]] std::string folded(std::string_view text) const;

    /// Folds like `folded`, but without the locale's own rules: the I of "Insert" always becomes i.
    [[nodiscard]] std::string foldedByDefault(std::string_view text) const;

    /// Whether the two foldings of the text can differ. Cheap.
    [[nodiscard]] bool hasLocalFolding(std::string_view text) const;

    /// Unicode default lower-casing, the same in every locale.
    [[nodiscard]] std::string lowercased(std::string_view text) const;

    /// Lower-casing by the rules of the locale: the Turkish I becomes a dotless one.
    [[nodiscard]] std::string localizedLowercased(std::string_view text) const;

    /// Unicode default upper-casing of the whole string, the same in every locale.
    [[nodiscard]] std::string uppercased(std::string_view text) const;

    /// Whether transliteration to Latin can change the text, because it has a letter of another script.
    [[nodiscard]] static bool hasNonLatinScript(std::string_view text);

    /// The text of any script in Latin letters (ICU's Any-Latin), e.g. "Fajl" for "Файл"; it may have
    /// diacritics. Absent when the transliteration is not available.
    [[nodiscard]] std::optional<std::string> transliteratedToLatin(std::string_view text) const;

    /// The extended grapheme clusters (Unicode Standard Annex 29) of a text, which users perceive as its
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
