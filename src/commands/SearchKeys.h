#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/TextServices.h"

namespace tovrel {

/// The rules for folding a text. In a Turkish or Azerbaijani locale the two differ for texts with an I; such
/// a text is searched by both, because applications there are often English.
enum class Folding { byLocale, byDefault };

/// The matching key of a text: folded, lower-cased, and reduced to letters, marks and numbers (general
/// categories L, M, N) without anything between them, so that "Save As…" and "save  as" have the same key.
/// The key is in normalization form C, so that canonically equivalent keys have the same bytes. May be empty.
std::string normalizedKey(std::string_view text, const TextServices& textServices,
                          Folding folding = Folding::byLocale);

/// The keys of a query: by the locale's folding and, if that differs, by the default one. Either all are
/// empty or none is.
std::vector<std::string> queryKeys(std::string_view query, const TextServices& textServices);

/// The keys under which a text can be found by one folding.
struct TextKeys {
    std::string native;
    std::optional<std::string> latin; ///< The key of its transliteration to Latin letters, if it differs.

    bool operator==(const TextKeys&) const = default;
};

/// The keys under which a text can be found.
struct SearchVariants {
    TextKeys byLocale;
    std::optional<TextKeys> byDefault; ///< Present where the default folding gives other keys.
};

SearchVariants searchVariants(std::string_view text, const TextServices& textServices);

} // namespace tovrel
