#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "commands/CommandKeys.h"
#include "support/TextServices.h"

namespace tovrel {

/// The score of a row's best key: 1000, 850, 760, 420 for an alias that equals, starts with, contains or
/// loosely contains the query; 900, 780, 680, 320 for any other text; 0 for no match.
using MatchScore = std::int32_t;

/// The lowest score of a match that is not loose.
inline constexpr MatchScore strongMatchScore = 680;

/// A query prepared for matching against a table.
struct SearchQuery {
    std::string key;            ///< Normalised, not empty.
    std::u32string symbols;     ///< One per grapheme cluster; see SearchKeyTable.
    std::uint64_t letters = 0;  ///< The bytes that occur, as a set of 64 classes.
    bool isKnown = true;        ///< False when a grapheme cluster occurs nowhere in the table.
    std::size_t looseLimit = 0; ///< The longest span, in grapheme clusters, of a loose match.
};

/// The keys of many commands in contiguous storage, one row per command, for scanning all of them on every
/// key press. Building it drops data that cannot change a row's score:
///
/// - A key that is the start of another key of the same kind (alias or not) can only add an exact match,
///   because the longer key starts with, contains and loosely contains everything that the shorter one does.
///   Only its length is kept, with the longer key.
/// - A key that occurs inside another one is examined only after the query was found in that one.
///
/// One test of a row's 64-bit set of letters skips the row if the query has a letter that it lacks.
///
/// Loose matching compares grapheme clusters. An ASCII key is its own sequence of clusters; for any other key
/// the sequence is stored, each distinct cluster as a number.
class SearchKeyTable {
  public:
    explicit SearchKeyTable(const TextServices& textServices) : textServices_(&textServices) {}

    /// Appends a row.
    void add(const CommandKeys& keys);

    [[nodiscard]] std::size_t rowCount() const { return rows_.size(); }

    /// Prepares a query whose normalised key is `key`, not empty.
    [[nodiscard]] SearchQuery prepare(std::string key) const;

    /// Whether the row may match the query; false is certain. Cheap.
    [[nodiscard]] bool mayMatch(std::size_t row, const SearchQuery& query) const {
        return (query.letters & ~letters_[row]) == 0;
    }

    /// The score of the row's best match that is not loose; 0 when there is none.
    [[nodiscard]] MatchScore strongScore(std::size_t row, const SearchQuery& query) const;

    /// The score of the row's best loose match; 0 when there is none.
    [[nodiscard]] MatchScore looseScore(std::size_t row, const SearchQuery& query) const;

  private:
    struct Key {
        std::uint32_t start = 0; ///< Index into bytes_.
        std::uint32_t size = 0;
        std::uint32_t firstSymbol = 0; ///< Index into symbols_; unused for a key of ASCII.
        std::uint32_t symbolCount = 0; ///< 0 for a key of ASCII.
        std::uint32_t firstExactSize =
            0; ///< Index into exactSizes_: the sizes of the keys this one starts with, its own too.
        std::uint32_t exactSizeCount = 0;
        bool isAlias = false;
        bool isInsideAnother = false; ///< It occurs in an earlier key of the row.
    };

    struct Row {
        std::uint32_t firstKey = 0;
        std::uint32_t keyCount = 0;
    };

    /// A key that is being added to the table.
    struct NewKey {
        std::string_view bytes;
        std::u32string symbols; ///< Empty for a key of ASCII.
        std::vector<std::uint32_t> exactSizes;
        bool isInsideAnother = false;
    };

    void addKeys(const std::vector<std::string>& keys, bool isAlias);
    void store(const NewKey& key, bool isAlias);
    [[nodiscard]] std::u32string internedSymbols(std::string_view key);
    [[nodiscard]] std::string_view bytesOf(const Key& key) const;
    [[nodiscard]] bool isExact(const Key& key, std::size_t size) const;
    [[nodiscard]] bool looselyContains(const Key& key, const SearchQuery& query) const;

    const TextServices* textServices_;
    std::vector<std::uint64_t> letters_; ///< One set for each row.
    std::vector<Row> rows_;
    std::vector<Key> keys_;
    std::vector<std::uint32_t> exactSizes_;
    std::string bytes_;
    std::u32string symbols_;
    std::unordered_map<std::string, char32_t>
        symbolOfCluster_; ///< Only clusters that are not one ASCII character.
};

} // namespace tovrel
