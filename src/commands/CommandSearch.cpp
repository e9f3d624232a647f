#include "commands/CommandSearch.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

#include "commands/SearchKeys.h"
#include "support/CheckedMath.h"

namespace tovrel {
namespace {

constexpr std::size_t discoveryLimit = 20;

} // namespace

std::vector<CommandSearch::Match> CommandSearch::discoveries(const CommandSearchIndex& index) {
    std::vector<Match> matches;
    for (std::uint32_t entry = 0; entry < index.entries().size(); ++entry) {
        if (const std::int64_t score = index.entries()[entry].discoveryScore; score > 0) {
            matches.push_back({entry, score});
        }
    }
    return matches;
}

/// The matches of both lists; a command in both gets the better score.
std::vector<CommandSearch::Match> CommandSearch::bestOf(std::vector<Match> left,
                                                        const std::vector<Match>& right) {
    if (right.empty()) {
        return left;
    }
    if (left.empty()) {
        return right;
    }
    std::vector<Match> best;
    best.reserve(left.size() + right.size());
    const auto isBefore = [](const Match& a, const Match& b) { return a.entry < b.entry; };
    std::merge(left.begin(), left.end(), right.begin(), right.end(), std::back_inserter(best), isBefore);
    const auto isSame = [](const Match& a, const Match& b) { return a.entry == b.entry; };
    for (auto match = best.begin(); (match = std::adjacent_find(match, best.end(), isSame)) != best.end();
         ++match) {
        match->score = std::max(match->score, std::next(match)->score);
    }
    best.erase(std::unique(best.begin(), best.end(), isSame), best.end());
    return best;
}

std::vector<CommandSearch::Match> CommandSearch::strongMatches(const std::vector<SearchQuery>& queries,
                                                               const CommandSearchIndex& index) {
    std::vector<Match> matches;
    std::vector<Narrowed> narrowed;
    for (const SearchQuery& query : queries) {
        narrowed.push_back({index, query.key, {}});
        matches = bestOf(strongMatches(query, index, narrowed.back().entries), matches);
    }
    previous_ = std::move(narrowed);
    return matches;
}

std::vector<CommandSearch::Match> CommandSearch::strongMatches(const SearchQuery& query,
                                                               const CommandSearchIndex& index,
                                                               std::vector<std::uint32_t>& entries) const {
    std::vector<Match> matches;
    const auto examine = [&](std::uint32_t entry) {
        if (!index.keys().mayMatch(entry, query)) {
            return;
        }
        if (const MatchScore score = index.keys().strongScore(entry, query); score > 0) {
            matches.push_back({entry, saturatingAdd(score, index.entries()[entry].rankBoost)});
            entries.push_back(entry);
        }
    };
    // A key that contains the longer query also contains the shorter query it extends.
    const auto shorter = std::find_if(previous_.begin(), previous_.end(), [&](const Narrowed& previous) {
        return query.key.starts_with(previous.key) && index.sharesContentsWith(previous.index);
    });
    if (shorter != previous_.end()) {
        std::for_each(shorter->entries.begin(), shorter->entries.end(), examine);
    } else {
        for (std::uint32_t entry = 0; entry < index.entries().size(); ++entry) {
            examine(entry);
        }
    }
    return matches;
}

std::vector<CommandSearch::Match> CommandSearch::withLooseMatches(const std::vector<Match>& strong,
                                                                  const SearchQuery& query,
                                                                  const CommandSearchIndex& index) {
    std::vector<Match> matches;
    auto nextStrong = strong.begin();
    for (std::uint32_t entry = 0; entry < index.entries().size(); ++entry) {
        if (nextStrong != strong.end() && nextStrong->entry == entry) {
            matches.push_back(*nextStrong++);
        } else if (index.keys().mayMatch(entry, query)) {
            if (const MatchScore score = index.keys().looseScore(entry, query); score > 0) {
                matches.push_back({entry, saturatingAdd(score, index.entries()[entry].rankBoost)});
            }
        }
    }
    return matches;
}

/// Best score first; equal scores keep their order. Unless the history is damaged, scores are close together
/// and are counted instead of compared: sorting a list of thousands would take longer than finding it.
CommandSearchResults CommandSearch::ranked(std::vector<Match> matches, const CommandSearchIndex& index) {
    std::vector<CommandSearchResults::Row> rows(matches.size());
    if (matches.empty()) {
        return {index, std::move(rows)};
    }
    const auto row = [&](const Match& match) {
        return CommandSearchResults::Row{index.entries()[match.entry].command, match.score};
    };
    const auto [lowest, highest] =
        std::minmax_element(matches.begin(), matches.end(),
                            [](const Match& left, const Match& right) { return left.score < right.score; });
    constexpr std::int64_t lowestCounted = -4096;
    if (lowest->score < lowestCounted) {
        std::stable_sort(matches.begin(), matches.end(),
                         [](const Match& left, const Match& right) { return left.score > right.score; });
        std::transform(matches.begin(), matches.end(), rows.begin(), row);
        return {index, std::move(rows)};
    }
    const std::int64_t top = highest->score;
    const auto distance = [top](const Match& match) { return static_cast<std::size_t>(top - match.score); };
    std::vector<std::size_t> places(distance(*lowest) + 2, 0);
    for (const Match& match : matches) {
        ++places[distance(match) + 1];
    }
    std::partial_sum(places.begin(), places.end(), places.begin());
    for (const Match& match : matches) {
        rows[places[distance(match)]++] = row(match);
    }
    return {index, std::move(rows)};
}

CommandSearchResults CommandSearch::search(const Text& query, const CommandSearchIndex& index) {
    std::vector<SearchQuery> queries;
    for (std::string& key : queryKeys(query.view(), index.textServices())) {
        if (!key.empty()) {
            queries.push_back(index.keys().prepare(std::move(key)));
        }
    }
    if (queries.empty()) {
        CommandSearchResults results = ranked(discoveries(index), index);
        results.truncate(discoveryLimit);
        return results;
    }
    std::vector<Match> matches = strongMatches(queries, index);
    const auto isWeak = [](const Match& match) { return match.score < strongMatchScore; };
    if (std::all_of(matches.begin(), matches.end(), isWeak)) {
        // A loose match scores at most 420 and a boost is at most 225, so none of these can be strong.
        const std::vector<Match> strong = std::move(matches);
        matches.clear();
        for (const SearchQuery& prepared : queries) {
            matches = bestOf(withLooseMatches(strong, prepared, index), matches);
        }
    } else {
        std::erase_if(matches, isWeak);
    }
    return ranked(std::move(matches), index);
}

} // namespace tovrel
