#include "platform/linux/MenuJoin.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace tovrel {
namespace {

/// The titled entries of a menu, those in containers without a title included, in their order.
void collectEntries(const MenuTree& tree, std::size_t menu, std::vector<std::size_t>& entries) {
    for (const std::size_t child : tree[menu].children) {
        if (tree[child].title.empty()) {
            collectEntries(tree, child, entries);
        } else {
            entries.push_back(child);
        }
    }
}

std::vector<std::size_t> entriesOf(const MenuTree& tree, std::size_t menu) {
    std::vector<std::size_t> entries;
    collectEntries(tree, menu, entries);
    return entries;
}

class Join {
  public:
    Join(MenuTree& tree, const MenuTree& other) : tree_(tree), other_(other) {}

    void menus(std::size_t menu, std::size_t otherMenu) {
        const std::vector<std::size_t> others = entriesOf(other_, otherMenu);
        std::unordered_map<Text, std::vector<std::size_t>> byTitle;
        for (auto entry = others.rbegin(); entry != others.rend(); ++entry) {
            byTitle[other_[*entry].title].push_back(*entry); // The first one is taken off the end first.
        }
        for (const std::size_t entry : entriesOf(tree_, menu)) {
            const auto found = byTitle.find(tree_[entry].title);
            if (found != byTitle.end() && !found->second.empty()) {
                const std::size_t match = found->second.back();
                found->second.pop_back();
                entries(entry, match);
            }
        }
    }

  private:
    void entries(std::size_t entry, std::size_t match) {
        const MenuNode& known = other_[match];
        MenuNode& node = tree_[entry];
        if (known.shortcut) {
            node.shortcut = known.shortcut;
        }
        if (!node.isChecked) {
            node.isChecked = known.isChecked;
        }
        if (entriesOf(tree_, entry).empty()) {
            copyEntries(entry, match);
        } else {
            menus(entry, match);
        }
    }

    void copyEntries(std::size_t menu, std::size_t otherMenu) {
        for (const std::size_t other : other_[otherMenu].children) {
            MenuNode copy = other_[other];
            copy.parent = menu;
            copy.children.clear();
            if (tree_[menu].isEnabled == false) {
                copy.isEnabled = false;
            }
            const std::size_t index = tree_.size();
            tree_.push_back(std::move(copy));
            tree_[menu].children.push_back(index);
            tree_[menu].isMenu = true;
            copyEntries(index, other);
        }
    }

    MenuTree& tree_;
    const MenuTree& other_;
};

bool hasEmptyMenu(const MenuTree& tree, std::size_t menu) {
    if (tree[menu].isMenu && tree[menu].children.empty()) {
        return true;
    }
    return std::any_of(tree[menu].children.begin(), tree[menu].children.end(),
                       [&](std::size_t child) { return hasEmptyMenu(tree, child); });
}

} // namespace

void joinMenus(MenuTree& tree, const MenuTree& other) {
    if (!tree.empty() && !other.empty()) {
        Join(tree, other).menus(0, 0);
    }
}

bool hasEmptyMenu(const MenuTree& tree) {
    return !tree.empty() && hasEmptyMenu(tree, 0);
}

} // namespace tovrel
