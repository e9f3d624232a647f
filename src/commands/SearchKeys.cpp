#include "commands/SearchKeys.h"

#include <unicode/uchar.h>

#include "support/Utf8.h"

namespace tovrel {
namespace {

bool isAlphanumeric(char32_t codePoint) {
    return (U_GET_GC_MASK(static_cast<UChar32>(codePoint)) & (U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK)) != 0;
}

bool isAsciiAlphanumeric(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z');
}

} // namespace

std::string normalizedKey(std::string_view text, const TextServices& textServices, Folding folding) {
    const std::string lowered = textServices.lowercased(
        folding == Folding::byLocale ? textServices.folded(text) : textServices.foldedByDefault(text));
    std::string key;
    key.reserve(lowered.size());
    bool isAllAscii = true;
    for (std::size_t position = 0; position < lowered.size();) {
        const char byte = lowered[position];
        if (static_cast<unsigned char>(byte) < 0x80) {
            ++position;
            if (isAsciiAlphanumeric(byte)) {
                key += byte;
            }
            continue;
        }
        const std::size_t start = position;
        if (isAlphanumeric(nextCodePoint(lowered, position))) {
            key.append(lowered, start, position - start);
            isAllAscii = false;
        }
    }
    // Two characters may compose now, because those between them were removed.
    return isAllAscii ? key : textServices.composed(key);
}

std::vector<std::string> queryKeys(std::string_view query, const TextServices& textServices) {
    std::vector<std::string> keys{normalizedKey(query, textServices)};
    if (textServices.hasLocalFolding(query)) {
        if (std::string key = normalizedKey(query, textServices, Folding::byDefault); key != keys.front()) {
            keys.push_back(std::move(key));
        }
    }
    return keys;
}

SearchVariants searchVariants(std::string_view text, const TextServices& textServices) {
    const std::optional<std::string> latin =
        TextServices::hasNonLatinScript(text) ? textServices.transliteratedToLatin(text) : std::nullopt;
    const auto keysBy = [&](Folding folding) {
        TextKeys keys{.native = normalizedKey(text, textServices, folding), .latin = std::nullopt};
        if (latin) {
            if (std::string key = normalizedKey(*latin, textServices, folding); key != keys.native) {
                keys.latin = std::move(key);
            }
        }
        return keys;
    };
    SearchVariants variants{.byLocale = keysBy(Folding::byLocale), .byDefault = std::nullopt};
    if (textServices.hasLocalFolding(text) || (latin && textServices.hasLocalFolding(*latin))) {
        if (TextKeys keys = keysBy(Folding::byDefault); keys != variants.byLocale) {
            variants.byDefault = std::move(keys);
        }
    }
    return variants;
}

} // namespace tovrel
