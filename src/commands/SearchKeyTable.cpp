#include "commands/SearchKeyTable.h"

#include <algorithm>
#include <utility>

#include "support/Utf8.h"

namespace tovrel {
namespace {

struct Scores {
    MatchScore exact;
    MatchScore prefix;
    MatchScore substring;
    MatchScore loose;
};

constexpr Scores aliasScores{1000, 850, 760, 420};
constexpr Scores candidateScores{900, 780, strongMatchScore, 320};

/// Symbols below this are ASCII characters themselves.
constexpr char32_t firstClusterSymbol = 0x80;

/// The class of a byte in a set of 64: each letter and each digit has one, all other bytes share 28.
constexpr std::uint64_t letterBit(unsigned char byte) {
    if (byte >= 'a' && byte <= 'z') {
        return std::uint64_t{1} << (byte - 'a');
    }
    if (byte >= '0' && byte <= '9') {
        return std::uint64_t{1} << (26 + byte - '0');
    }
    return std::uint64_t{1} << (36 + byte % 28);
}

std::uint64_t lettersOf(std::string_view bytes) {
    std::uint64_t letters = 0;
    for (const char byte : bytes) {
        letters |= letterBit(static_cast<unsigned char>(byte));
    }
    return letters;
}

/// Whether `text` holds the symbols of `query` in order, each taken as early as possible, from the first to
/// the last within `limit` places. `text` and `query` are random-access sequences of comparable elements.
template <typename Sequence, typename Query>
bool holdsWithin(const Sequence& text, const Query& query, std::size_t limit) {
    const std::size_t start = text.find(query.front());
    if (start == Sequence::npos) {
        return false;
    }
    const std::size_t end = std::min(text.size(), start + limit);
    std::size_t matched = 1;
    for (std::size_t i = start + 1; i < end && matched < query.size(); ++i) {
        if (text[i] == query[matched]) {
            ++matched;
        }
    }
    return matched == query.size();
}

} // namespace

std::string_view SearchKeyTable::bytesOf(const Key& key) const {
    return std::string_view(bytes_).substr(key.start, key.size);
}

std::u32string SearchKeyTable::internedSymbols(std::string_view key) {
    std::u32string symbols;
    for (const std::string_view cluster : textServices_->graphemeClusters(key)) {
        if (cluster.size() == 1) {
            symbols += static_cast<char32_t>(cluster.front());
            continue;
        }
        const auto next = static_cast<char32_t>(firstClusterSymbol + symbolOfCluster_.size());
        symbols += symbolOfCluster_.try_emplace(std::string(cluster), next).first->second;
    }
    return symbols;
}

void SearchKeyTable::add(const CommandKeys& keys) {
    const auto firstKey = static_cast<std::uint32_t>(keys_.size());
    std::uint64_t letters = 0;
    for (const auto* variants : {&keys.aliasVariants, &keys.candidateVariants}) {
        for (const std::string& variant : *variants) {
            letters |= lettersOf(variant);
        }
        addKeys(*variants, variants == &keys.aliasVariants);
    }
    letters_.push_back(letters);
    rows_.push_back({firstKey, static_cast<std::uint32_t>(keys_.size()) - firstKey});
}

void SearchKeyTable::addKeys(const std::vector<std::string>& keys, bool isAlias) {
    std::vector<std::string_view> longestFirst(keys.begin(), keys.end());
    std::stable_sort(
        longestFirst.begin(), longestFirst.end(),
        [](std::string_view left, std::string_view right) { return left.size() > right.size(); });

    std::vector<NewKey> kept;
    for (const std::string_view key : longestFirst) {
        NewKey added{.bytes = key,
                     .symbols = isAscii(key) ? std::u32string() : internedSymbols(key),
                     .exactSizes = {static_cast<std::uint32_t>(key.size())}};
        // Grapheme clusters count too: the shorter key's last cluster must not continue in the longer key.
        const auto longer = std::find_if(kept.begin(), kept.end(), [&](const NewKey& other) {
            return other.bytes.starts_with(key) &&
                   (other.symbols.empty() ||
                    other.symbols.starts_with(added.symbols.empty() ? internedSymbols(key) : added.symbols));
        });
        if (longer != kept.end()) {
            longer->exactSizes.push_back(added.exactSizes.front());
            continue;
        }
        added.isInsideAnother = std::any_of(kept.begin(), kept.end(), [&](const NewKey& other) {
            return other.bytes.find(key) != std::string_view::npos;
        });
        kept.push_back(std::move(added));
    }
    for (const NewKey& key : kept) {
        store(key, isAlias);
    }
}

void SearchKeyTable::store(const NewKey& key, bool isAlias) {
    keys_.push_back({.start = static_cast<std::uint32_t>(bytes_.size()),
                     .size = static_cast<std::uint32_t>(key.bytes.size()),
                     .firstSymbol = static_cast<std::uint32_t>(symbols_.size()),
                     .symbolCount = static_cast<std::uint32_t>(key.symbols.size()),
                     .firstExactSize = static_cast<std::uint32_t>(exactSizes_.size()),
                     .exactSizeCount = static_cast<std::uint32_t>(key.exactSizes.size()),
                     .isAlias = isAlias,
                     .isInsideAnother = key.isInsideAnother});
    bytes_ += key.bytes;
    symbols_ += key.symbols;
    exactSizes_.insert(exactSizes_.end(), key.exactSizes.begin(), key.exactSizes.end());
}

SearchQuery SearchKeyTable::prepare(std::string key) const {
    SearchQuery query;
    query.key = std::move(key);
    query.letters = lettersOf(query.key);
    for (const std::string_view cluster : textServices_->graphemeClusters(query.key)) {
        if (cluster.size() == 1) {
            query.symbols += static_cast<char32_t>(cluster.front());
            continue;
        }
        const auto known = symbolOfCluster_.find(std::string(cluster));
        query.isKnown = query.isKnown && known != symbolOfCluster_.end();
        query.symbols += known != symbolOfCluster_.end() ? known->second : U'\0';
    }
    const std::size_t count = query.symbols.size();
    query.looseLimit = std::max(5 * count / 2, count + 4);
    return query;
}

bool SearchKeyTable::isExact(const Key& key, std::size_t size) const {
    const auto first = exactSizes_.begin() + key.firstExactSize;
    return std::find(first, first + key.exactSizeCount, size) != first + key.exactSizeCount;
}

MatchScore SearchKeyTable::strongScore(std::size_t row, const SearchQuery& query) const {
    MatchScore best = 0;
    bool isFound[2] = {false, false}; // whether the query was found at all: in a candidate, in an alias
    const Key* key = keys_.data() + rows_[row].firstKey;
    for (const Key* end = key + rows_[row].keyCount; key != end; ++key) {
        if (key->size < query.key.size() || (key->isInsideAnother && !isFound[key->isAlias ? 1 : 0])) {
            continue;
        }
        const std::size_t place = bytesOf(*key).find(query.key);
        if (place == std::string_view::npos) {
            continue;
        }
        isFound[key->isAlias ? 1 : 0] = true;
        const Scores& scores = key->isAlias ? aliasScores : candidateScores;
        if (place > 0) {
            best = std::max(best, scores.substring);
        } else {
            best = std::max(best, isExact(*key, query.key.size()) ? scores.exact : scores.prefix);
        }
    }
    return best;
}

bool SearchKeyTable::looselyContains(const Key& key, const SearchQuery& query) const {
    if (key.symbolCount == 0) {
        return query.key.size() == query.symbols.size() &&
               holdsWithin(bytesOf(key), query.key, query.looseLimit);
    }
    const auto symbols = std::u32string_view(symbols_).substr(key.firstSymbol, key.symbolCount);
    return holdsWithin(symbols, query.symbols, query.looseLimit);
}

MatchScore SearchKeyTable::looseScore(std::size_t row, const SearchQuery& query) const {
    if (!query.isKnown) {
        return 0;
    }
    // Aliases come first in a row and score higher.
    const Key* key = keys_.data() + rows_[row].firstKey;
    for (const Key* end = key + rows_[row].keyCount; key != end; ++key) {
        if (looselyContains(*key, query)) {
            return key->isAlias ? aliasScores.loose : candidateScores.loose;
        }
    }
    return 0;
}

} // namespace tovrel
