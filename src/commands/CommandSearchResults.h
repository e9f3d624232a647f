#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>
#include <vector>

#include "commands/CommandSearchIndex.h"

namespace tovrel {

/// A matched command and its final score; higher ranks first. Refers into its index.
struct CommandSearchResult {
    const Command& command;
    std::int64_t score;

    friend bool operator==(const CommandSearchResult& left, const CommandSearchResult& right) {
        return left.command == right.command && left.score == right.score;
    }
};

/// A ranked list, best first. It shares the index's commands instead of copying them, so a list of thousands
/// costs 16 bytes a row, and it stays valid after the index is gone.
class CommandSearchResults {
  public:
    struct Row {
        std::uint32_t command = 0; ///< Position in the index's commands.
        std::int64_t score = 0;

        friend bool operator==(const Row&, const Row&) = default;
    };

    class Iterator {
      public:
        using iterator_category = std::input_iterator_tag;
        using value_type = CommandSearchResult;
        using difference_type = std::ptrdiff_t;
        using pointer = void;
        using reference = CommandSearchResult;

        Iterator(const CommandSearchResults& results, std::size_t position)
            : results_(&results), position_(position) {}

        CommandSearchResult operator*() const { return (*results_)[position_]; }
        Iterator& operator++() {
            ++position_;
            return *this;
        }
        friend bool operator==(const Iterator&, const Iterator&) = default;

      private:
        const CommandSearchResults* results_;
        std::size_t position_;
    };

    CommandSearchResults(CommandSearchIndex index, std::vector<Row> rows)
        : index_(std::move(index)), rows_(std::move(rows)) {}

    /// Keeps the first `count` rows at most.
    void truncate(std::size_t count) { rows_.resize(std::min(count, rows_.size())); }

    [[nodiscard]] std::size_t size() const { return rows_.size(); }
    [[nodiscard]] bool empty() const { return rows_.empty(); }
    [[nodiscard]] CommandSearchResult operator[](std::size_t position) const {
        const Row& row = rows_[position];
        return {index_.commands()[row.command], row.score};
    }
    [[nodiscard]] Iterator begin() const { return {*this, 0}; }
    [[nodiscard]] Iterator end() const { return {*this, rows_.size()}; }

  private:
    CommandSearchIndex index_;
    std::vector<Row> rows_;
};

} // namespace tovrel
