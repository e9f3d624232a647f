#include "platform/linux/menus/MenuJoin.h"

#include <optional>
#include <utility>

#include "platform/linux/menus/source/EntriesByTitle.h"

namespace tovrel {
namespace {

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

} // namespace

void joinMenus(MenuTree& tree, const MenuTree& other) {
    if (!tree.empty() && !other.empty()) {
        Join(tree, other).menus(0, 0);
    }
}

} // namespace tovrel
