#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "commands/SearchKeyTable.h"
#include "model/Command.h"
#include "support/TextServices.h"

namespace tovrel {

/// One command that can be found: enabled, with its boosts from the usage history.
struct IndexedCommand {
    std::uint32_t command = 0;       ///< Position in the command list.
    std::int64_t rankBoost = 0;      ///< Added to the match score of a non-empty query.
    std::int64_t discoveryScore = 0; ///< Ranks the command while nothing is typed.
};

/// All data for searching that depends only on the commands, computed once. It is an immutable value; copies
/// share their contents.
///
/// Disabled commands are never found and have no entry. Entries have the order in which equal scores are
/// shown (title by the user's locale, then position in the command list), so that ranking needs no comparison
/// of titles.
class CommandSearchIndex {
  public:
    /// Never fails. An overflow of a boost, which only a damaged history can cause, ends the process.
    CommandSearchIndex(std::vector<Command> commands, const TextServices& textServices);

    /// The commands it was built from, in their order.
    [[nodiscard]] const std::vector<Command>& commands() const { return contents_->commands; }

    /// The enabled commands in display order.
    [[nodiscard]] const std::vector<IndexedCommand>& entries() const { return contents_->entries; }

    /// The keys of the entries, row by row.
    [[nodiscard]] const SearchKeyTable& keys() const { return contents_->keys; }

    /// The text services it was built with, which also normalise queries.
    [[nodiscard]] const TextServices& textServices() const { return *contents_->textServices; }

    /// Whether both are the same index or copies of one.
    [[nodiscard]] bool sharesContentsWith(const CommandSearchIndex& other) const {
        return contents_ == other.contents_;
    }

  private:
    struct Contents {
        explicit Contents(const TextServices& services) : keys(services), textServices(&services) {}

        std::vector<Command> commands;
        std::vector<IndexedCommand> entries;
        SearchKeyTable keys;
        const TextServices* textServices;
    };

    std::shared_ptr<const Contents> contents_;
};

} // namespace tovrel
