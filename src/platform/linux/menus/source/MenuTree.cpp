#include "platform/linux/menus/source/MenuTree.h"

#include <algorithm>

#include "model/MenuTitle.h"

namespace tovrel {
namespace {

/// The nodes that show these titles, in the order of the tree.
std::vector<std::size_t> nodesWithPath(const MenuTree& tree, const std::vector<Text>& path) {
    std::vector<std::size_t> found;
    for (std::size_t node = 1; node < tree.size(); ++node) {
        // The last title is compared first: building the path of every node would be slow.
        if (tree[node].title == path.back() && menuPath(tree, node) == path) {
            found.push_back(node);
        }
    }
    return found;
}

bool hasEmptyMenu(const MenuTree& tree, std::size_t menu) {
    if (tree[menu].isMenu && tree[menu].children.empty()) {
        return true;
    }
    return std::any_of(tree[menu].children.begin(), tree[menu].children.end(),
                       [&](std::size_t child) { return hasEmptyMenu(tree, child); });
}

} // namespace

Text titleOfLabel(std::string_view label) {
    label = label.substr(0, longestMenuName);
    std::string shown;
    shown.reserve(label.size());
    for (std::size_t index = 0; index < label.size(); ++index) {
        if (label[index] == '_') {
            ++index;
        }
        if (index < label.size()) {
            shown += label[index];
        }
    }
    return menuTitle(shown);
}

std::vector<Text> menuPath(const MenuTree& tree, std::size_t node) {
    std::vector<Text> path;
    for (; node != 0; node = tree[node].parent) {
        if (!tree[node].title.empty()) {
            path.push_back(tree[node].title);
        }
    }
    std::reverse(path.begin(), path.end());
    return path;
}

std::optional<std::size_t> counterpart(const MenuTree& before, std::size_t node, const MenuTree& now) {
    if (before[node].title.empty()) {
        return std::nullopt;
    }
    const std::vector<Text> path = menuPath(before, node);
    const std::vector<std::size_t> alikeBefore = nodesWithPath(before, path);
    const std::vector<std::size_t> alikeNow = nodesWithPath(now, path);
    const auto position = std::find(alikeBefore.begin(), alikeBefore.end(), node);
    if (alikeBefore.size() != alikeNow.size() || position == alikeBefore.end()) {
        return std::nullopt;
    }
    return alikeNow[static_cast<std::size_t>(position - alikeBefore.begin())];
}

bool hasEmptyMenu(const MenuTree& tree) {
    return !tree.empty() && hasEmptyMenu(tree, 0);
}

bool hasOnlyEmptyMenus(const MenuTree& tree) {
    const auto isEmptyMenu = [&](std::size_t entry) {
        return tree[entry].isMenu && tree[entry].children.empty();
    };
    return !tree.empty() && !tree.front().children.empty() &&
           std::all_of(tree.front().children.begin(), tree.front().children.end(), isEmptyMenu);
}

} // namespace tovrel
