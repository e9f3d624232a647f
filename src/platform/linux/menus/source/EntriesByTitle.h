#pragma once

#include <cstddef>
#include <optional>
#include <unordered_map>
#include <vector>

#include "platform/linux/menus/source/MenuTree.h"

namespace tovrel {

/// The titled entries of a menu in their order, including those in untitled containers.
std::vector<std::size_t> entriesOf(const MenuTree& tree, std::size_t menu);

/// Gives out the entries of a menu by their titles, each once; entries with the same title come in their
/// order.
class EntriesByTitle {
  public:
    EntriesByTitle(const MenuTree& tree, std::size_t menu);

    std::optional<std::size_t> take(const Text& title);

    /// The entry whose title is the part of this title before a colon.
    std::optional<std::size_t> takeBeginning(const Text& title);

  private:
    std::unordered_map<Text, std::vector<std::size_t>> byTitle_;
};

} // namespace tovrel
