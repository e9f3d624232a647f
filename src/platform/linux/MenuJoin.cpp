#include "platform/linux/MenuJoin.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
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

/// Takes entries out of a menu by their titles.
class EntriesByTitle {
  public:
    EntriesByTitle(const MenuTree& tree, std::size_t menu) : tree_(&tree), entries_(entriesOf(tree, menu)) {
        for (auto entry = entries_.rbegin(); entry != entries_.rend(); ++entry) {
            byTitle_[tree[*entry].title].push_back(*entry); // The first one is taken off the end first.
        }
    }

    std::optional<std::size_t> take(const Text& title) {
        const auto found = byTitle_.find(title);
        if (found == byTitle_.end() || found->second.empty()) {
            return std::nullopt;
        }
        const std::size_t entry = found->second.back();
        found->second.pop_back();
        return entry;
    }

    /// The only entry whose title goes on after this one and a colon.
    std::optional<std::size_t> takeContinued(const Text& title) {
        const std::string beginning = title.utf8() + ":";
        const auto continues = [&](std::size_t entry) {
            return std::string_view((*tree_)[entry].title.utf8()).starts_with(beginning);
        };
        const auto found = std::find_if(entries_.begin(), entries_.end(), continues);
        return found == entries_.end() ||
                       std::find_if(std::next(found), entries_.end(), continues) != entries_.end()
                   ? std::nullopt
                   : take((*tree_)[*found].title);
    }

  private:
    const MenuTree* tree_;
    std::vector<std::size_t> entries_;
    std::unordered_map<Text, std::vector<std::size_t>> byTitle_;
};

class Join {
  public:
    Join(MenuTree& tree, const MenuTree& other) : tree_(tree), other_(other) {}

    void menus(std::size_t menu, std::size_t otherMenu) {
        EntriesByTitle others(other_, otherMenu);
        for (const std::size_t entry : entriesOf(tree_, menu)) {
            if (const auto match = others.take(tree_[entry].title)) {
                entries(entry, *match);
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

class LiveStates {
  public:
    LiveStates(const MenuTree& shown, const MenuTree& live) : shown_(shown), live_(live) {}

    MenuTree joined() {
        tree_.push_back(withoutEntries(shown_.front()));
        addEntries(0, 0, 0);
        return std::move(tree_);
    }

  private:
    static MenuNode withoutEntries(const MenuNode& node) {
        MenuNode copy = node;
        copy.children.clear();
        return copy;
    }

    void addEntries(std::size_t shownMenu, std::size_t liveMenu, std::size_t menu) {
        EntriesByTitle live(live_, liveMenu);
        const std::vector<std::size_t> shown = entriesOf(shown_, shownMenu);
        std::vector<std::optional<std::size_t>> matches;
        for (const std::size_t entry : shown) {
            matches.push_back(live.take(shown_[entry].title));
        }
        for (std::size_t index = 0; index < shown.size(); ++index) {
            const auto match =
                matches[index] ? matches[index] : live.takeContinued(shown_[shown[index]].title);
            if (match) {
                addEntry(shown[index], *match, menu);
            }
        }
    }

    void addEntry(std::size_t entry, std::size_t match, std::size_t menu) {
        MenuNode node = withoutEntries(shown_[entry]);
        node.parent = menu;
        node.isEnabled = live_[match].isEnabled;
        node.isChecked = live_[match].isChecked.value_or(false);
        const std::size_t index = tree_.size();
        tree_.push_back(std::move(node));
        addEntries(entry, match, index);
        if (!shown_[entry].isMenu || !tree_[index].children.empty()) {
            tree_[menu].children.push_back(index);
        }
    }

    const MenuTree& shown_;
    const MenuTree& live_;
    MenuTree tree_;
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

MenuTree withLiveStates(const MenuTree& shown, const MenuTree& live) {
    return shown.empty() || live.empty() ? MenuTree() : LiveStates(shown, live).joined();
}

bool hasEmptyMenu(const MenuTree& tree) {
    return !tree.empty() && hasEmptyMenu(tree, 0);
}

} // namespace tovrel
