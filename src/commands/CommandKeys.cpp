#include "commands/CommandKeys.h"

#include <algorithm>
#include <utility>

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/uscript.h>

#include "support/Utf8.h"

namespace tovrel {
namespace {

void addDistinct(std::string_view key, std::vector<std::string>& keys) {
    if (!key.empty() && std::find(keys.begin(), keys.end(), key) == keys.end()) {
        keys.emplace_back(key);
    }
}

/// Whether the script's transliteration of a word does not depend on the words around it. Other scripts take
/// the long way: Thai, whose words a dictionary finds, or Greek, whose letters depend on their neighbours.
bool isWordwiseScript(UScriptCode script) {
    switch (script) {
    case USCRIPT_LATIN:
    case USCRIPT_CYRILLIC:
    case USCRIPT_HIRAGANA:
    case USCRIPT_KATAKANA:
    case USCRIPT_HAN:
    case USCRIPT_HANGUL:
        return true;
    default:
        return false;
    }
}

/// Whether every character that can reach a key belongs to such a script. The prolonged sound mark of
/// Katakana has no script of its own; it belongs to the letter before it.
bool isWordwise(std::string_view text) {
    constexpr char32_t prolongedSoundMark = 0x30FC;
    for (std::size_t position = 0; position < text.size();) {
        const bool isFirst = position == 0;
        const char32_t codePoint = nextCodePoint(text, position);
        if (codePoint < 0x80 || (codePoint == prolongedSoundMark && !isFirst)) {
            continue;
        }
        const auto character = static_cast<UChar32>(codePoint);
        if ((U_GET_GC_MASK(character) & (U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK)) == 0) {
            continue;
        }
        UErrorCode status = U_ZERO_ERROR;
        if (!isWordwiseScript(uscript_getScript(character, &status))) {
            return false;
        }
    }
    return true;
}

void addDistinct(const TextKeys& added, std::vector<std::string>& keys) {
    addDistinct(added.native, keys);
    if (added.latin) {
        addDistinct(*added.latin, keys);
    }
}

void addDistinct(const SearchVariants& variants, std::vector<std::string>& keys) {
    addDistinct(variants.byLocale, keys);
    if (variants.byDefault) {
        addDistinct(*variants.byDefault, keys);
    }
}

void append(const TextKeys& added, TextKeys& keys) {
    if (added.latin && !keys.latin) {
        keys.latin = keys.native; // the same up to here
    }
    if (keys.latin) {
        *keys.latin += added.latin ? *added.latin : added.native;
    }
    keys.native += added.native;
}

/// Whether the first character of a key cannot compose with one before it.
bool startsFresh(std::string_view key) {
    if (key.empty() || static_cast<unsigned char>(key.front()) < 0x80) {
        return true;
    }
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* formC = icu::Normalizer2::getNFCInstance(status);
    std::size_t position = 0;
    return U_SUCCESS(status) &&
           formC->hasBoundaryBefore(static_cast<UChar32>(nextCodePoint(key, position))) != 0;
}

bool startsFresh(const TextKeys& keys) {
    return startsFresh(keys.native) && (!keys.latin || startsFresh(*keys.latin));
}

std::vector<std::string_view> wordsOf(std::string_view text) {
    std::vector<std::string_view> words;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(' ', start), text.size());
        words.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return words;
}

} // namespace

std::optional<CommandKeyDeriver::Derived>
CommandKeyDeriver::composed(const std::vector<std::string_view>& texts) {
    Derived whole{.variants = {}, .isComposable = true};
    for (const std::string_view text : texts) {
        const Derived& part = derived(text);
        if (!part.isComposable) {
            return std::nullopt;
        }
        SearchVariants& variants = whole.variants;
        if (part.variants.byDefault && !variants.byDefault) {
            variants.byDefault = variants.byLocale;
        }
        if (variants.byDefault) {
            append(part.variants.byDefault ? *part.variants.byDefault : part.variants.byLocale,
                   *variants.byDefault);
        }
        append(part.variants.byLocale, variants.byLocale);
    }
    return whole;
}

CommandKeyDeriver::Derived CommandKeyDeriver::derive(std::string_view text) {
    if (text.find(' ') != std::string_view::npos && TextServices::hasNonLatinScript(text)) {
        if (std::optional<Derived> whole = composed(wordsOf(text))) {
            return *std::move(whole);
        }
    }
    Derived result{.variants = searchVariants(text, *textServices_), .isComposable = isWordwise(text)};
    const SearchVariants& variants = result.variants;
    result.isComposable = result.isComposable && startsFresh(variants.byLocale) &&
                          (!variants.byDefault || startsFresh(*variants.byDefault));
    return result;
}

const CommandKeyDeriver::Derived& CommandKeyDeriver::derived(std::string_view text) {
    std::string key(text);
    if (const auto found = derived_.find(key); found != derived_.end()) {
        return found->second;
    }
    Derived result = derive(text);
    return derived_.emplace(std::move(key), std::move(result)).first->second;
}

void CommandKeyDeriver::addVariants(const Text& text, std::vector<std::string>& keys) {
    addDistinct(derived(text.view()).variants, keys);
}

void CommandKeyDeriver::addJoinedVariants(const std::vector<std::string_view>& texts,
                                          std::vector<std::string>& keys) {
    if (const std::optional<Derived> whole = composed(texts)) {
        addDistinct(whole->variants, keys);
        return;
    }
    std::string joined;
    for (const std::string_view text : texts) {
        joined.append(text).append(" ");
    }
    addDistinct(searchVariants(joined, *textServices_), keys);
}

CommandKeys CommandKeyDeriver::keysOf(const Command& command) {
    CommandKeys keys;
    keys.candidateVariants.reserve(command.menuPath.size() + 6);
    for (const Text& alias : command.aliases) {
        addVariants(alias, keys.aliasVariants);
    }
    std::vector<std::string>& candidates = keys.candidateVariants;
    addVariants(command.title, candidates);
    if (command.subtitle) {
        addVariants(*command.subtitle, candidates);
    }
    if (command.shortcut) {
        addVariants(*command.shortcut, candidates);
    }
    std::vector<std::string_view> path;
    for (const Text& title : command.menuPath) {
        path.push_back(title.view());
    }
    addJoinedVariants(path, candidates);
    path.push_back(command.title.view());
    addJoinedVariants(path, candidates);
    for (const Text& token : command.searchTokens) {
        addVariants(token, candidates);
    }
    return keys;
}

} // namespace tovrel
