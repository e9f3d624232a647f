#include "platform/linux/menus/source/EntriesByTitle.h"

#include <string>

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

EntriesByTitle::EntriesByTitle(const MenuTree& tree, std::size_t menu) {
    const std::vector<std::size_t> entries = entriesOf(tree, menu);
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
        byTitle_[tree[*entry].title].push_back(*entry); // `take` takes from the end.
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

std::optional<std::size_t> EntriesByTitle::takeBeginning(const Text& title) {
    const std::size_t colon = title.utf8().find(':');
    return colon == std::string::npos ? std::nullopt : take(Text(title.utf8().substr(0, colon)));
}

} // namespace tovrel
