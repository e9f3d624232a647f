#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "commands/CommandSearchIndex.h"
#include "commands/CommandSearchResults.h"
#include "support/Text.h"

namespace tovrel {

/// Finds and ranks commands for what the user has typed.
///
/// The result depends only on the arguments. The object remembers its last search only to save work: if a
/// query's key extends the previous one, over the same index, it looks only at the commands that matched
/// then.
class CommandSearch {
  public:
    /// The commands that match `query`, as typed, best first; equal scores are ordered by title, then by
    /// position in the command list. A score is the match score plus the entry's rank boost. Once anything
    /// scores 680 or more, lower scores are left out. A query with no letter, digit or mark lists at most 20
    /// commands by their discovery score instead. Never fails.
    [[nodiscard]] CommandSearchResults search(const Text& query, const CommandSearchIndex& index);

  private:
    struct Match {
        std::uint32_t entry = 0;
        std::int64_t score = 0;
    };

    /// The matches of one key, from which the next search starts.
    struct Narrowed {
        CommandSearchIndex index;
        std::string key;                    ///< The key searched for, not empty.
        std::vector<std::uint32_t> entries; ///< The entries that it matched more than loosely, in order.
    };

    /// All lists of matches are in the order of the entries until they are ranked.
    [[nodiscard]] static std::vector<Match> discoveries(const CommandSearchIndex& index);
    [[nodiscard]] static std::vector<Match> bestOf(std::vector<Match> left, const std::vector<Match>& right);
    [[nodiscard]] std::vector<Match> strongMatches(const std::vector<SearchQuery>& queries,
                                                   const CommandSearchIndex& index);
    [[nodiscard]] std::vector<Match> strongMatches(const SearchQuery& query, const CommandSearchIndex& index,
                                                   std::vector<std::uint32_t>& entries) const;
    [[nodiscard]] static std::vector<Match> withLooseMatches(const std::vector<Match>& strong,
                                                             const SearchQuery& query,
                                                             const CommandSearchIndex& index);
    [[nodiscard]] static CommandSearchResults ranked(std::vector<Match> matches,
                                                     const CommandSearchIndex& index);

    std::vector<Narrowed> previous_; ///< One for each key of the last query.
};

} // namespace tovrel
