#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/TextServices.h"

namespace tovrel {

/// The matching key of a text: folded, lower-cased, and reduced to letters, marks and numbers (general
/// categories L, M, N) with everything between them gone, so that "Save As…" and "save  as" have the same
/// key. In normalization form C, so that keys which are canonically equivalent are the same bytes. May be
/// empty.
std::string normalizedKey(std::string_view text, const TextServices& textServices);

/// The keys under which a text can be found: its own, and that of its transliteration to Latin letters when
/// that differs. One or two keys.
std::vector<std::string> searchVariants(std::string_view text, const TextServices& textServices);

} // namespace tovrel
