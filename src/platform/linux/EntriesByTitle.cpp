#include "platform/linux/EntriesByTitle.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace tovrel {
namespace {

void collectEntries(const MenuTree& tree, std::size_t menu, std::vector<std::size_t>& entries) {
    for (const std::size_t child : tree[menu].children) {
        if (tree[child].title.empty()) {
            collectEntries(tree, child, entries);
        } else {
            entries.push_back(child);
        }
    }
}

} // namespace

std::vector<std::size_t> entriesOf(const MenuTree& tree, std::size_t menu) {
    std::vector<std::size_t> entries;
    collectEntries(tree, menu, entries);
    return entries;
}

EntriesByTitle::EntriesByTitle(const MenuTree& tree, std::size_t menu)
    : tree_(&tree), entries_(entriesOf(tree, menu)) {
    for (auto entry = entries_.rbegin(); entry != entries_.rend(); ++entry) {
        byTitle_[tree[*entry].title].push_back(*entry); // The first one is taken off the end first.
    }
}

std::optional<std::size_t> EntriesByTitle::take(const Text& title) {
    const auto found = byTitle_.find(title);
    if (found == byTitle_.end() || found->second.empty()) {
        return std::nullopt;
    }
    const std::size_t entry = found->second.back();
    found->second.pop_back();
    return entry;
}

std::optional<std::size_t> EntriesByTitle::takeContinued(const Text& title) {
    const std::string beginning = title.utf8() + ":";
    const auto continues = [&](std::size_t entry) {
        return std::string_view((*tree_)[entry].title.utf8()).starts_with(beginning);
    };
    const auto found = std::find_if(entries_.begin(), entries_.end(), continues);
    const bool isOnly = found != entries_.end() &&
                        std::find_if(std::next(found), entries_.end(), continues) == entries_.end();
    return isOnly ? take((*tree_)[*found].title) : std::nullopt;
}

} // namespace tovrel
