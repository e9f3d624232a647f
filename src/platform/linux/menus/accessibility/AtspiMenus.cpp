#include "platform/linux/menus/accessibility/AtspiMenus.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "model/MenuTitle.h"
#include "platform/linux/menus/accessibility/AtspiCalls.h"
#include "platform/linux/menus/accessibility/AtspiKeyBinding.h"

namespace tovrel {
namespace {

bool is(const AtspiNode& node, AtspiState state) {
    return node.states && holds(*node.states, state);
}

bool isPartOfMenu(const AtspiNode& node) {
    return node.role == AtspiRole::menuBar || node.role == AtspiRole::menu ||
           node.role == AtspiRole::popupMenu || (node.role && isMenuItem(*node.role));
}

bool isHidden(const AtspiNode& node, const AtspiMenuTree& tree, bool visibilityIsTold) {
    if (!node.states) {
        return false;
    }
    if (tree.toolkit == AtspiToolkit::gtk) {
        return visibilityIsTold && !is(node, AtspiState::visible);
    }
    return tree.toolkit == AtspiToolkit::qt && !is(node, AtspiState::sensitive) && node.hasComponent == false;
}

/// Gecko fills a menu when it is opened, and a press does not open a menu within another menu.
bool isUnfilled(const MenuNode& node, const AtspiMenuTree& tree) {
    return tree.toolkit == AtspiToolkit::gecko && node.parent != 0 && node.isMenu && node.children.empty();
}

/// A container's own states are not read: it is enabled if its menu is. A disabled ancestor disables
/// everything below it.
std::optional<bool> isEnabled(const AtspiNode& node, std::optional<bool> parentIsEnabled) {
    if (parentIsEnabled == false || !node.states) {
        return node.role == AtspiRole::popupMenu || parentIsEnabled == false ? parentIsEnabled : std::nullopt;
    }
    return is(node, AtspiState::sensitive);
}

std::optional<bool> isChecked(const AtspiNode& node) {
    if (is(node, AtspiState::checked)) {
        return true;
    }
    return node.role && isCheckable(*node.role) && node.states ? std::optional(false) : std::nullopt;
}

} // namespace

MenuTree menuTreeOf(const AtspiMenuTree& tree) {
    const bool visibilityIsTold =
        std::any_of(tree.nodes.begin(), tree.nodes.end(),
                    [](const AtspiNode& node) { return is(node, AtspiState::visible); });
    MenuTree all(tree.nodes.size());
    // A node comes after its parent, so a forward pass sees parents first, a backward pass children first.
    for (std::size_t index = 0; index < all.size(); ++index) {
        const AtspiNode& node = tree.nodes[index];
        MenuNode& shown = all[index];
        const std::string_view name = node.name ? std::string_view(*node.name) : std::string_view();
        const std::size_t tab = name.find('\t');
        shown.title = menuTitle(name.substr(0, tab));
        shown.shortcut =
            menuShortcut(node.keyBinding, tree.toolkit,
                         tab == std::string_view::npos ? "" : name.substr(tab + 1, longestKeyBinding));
        shown.isChecked = isChecked(node);
        shown.isEnabled = index > 0 ? isEnabled(node, all[node.parent].isEnabled) : true;
        shown.isMenu = node.role == AtspiRole::menu || node.role == AtspiRole::menuBar;
        shown.parent = node.parent;
        shown.item = AtspiObject{tree.busName, node.path};
    }
    for (std::size_t index = all.size(); index-- > 0;) {
        // In Qt only the container of its entries distinguishes a menu from a plain item.
        if (tree.nodes[index].role == AtspiRole::popupMenu) {
            all[tree.nodes[index].parent].isMenu = true;
        }
        std::vector<std::size_t>& children = all[index].children;
        std::copy_if(tree.nodes[index].children.begin(), tree.nodes[index].children.end(),
                     std::back_inserter(children), [&](std::size_t child) {
                         const AtspiNode& node = tree.nodes[child];
                         return isPartOfMenu(node) && !isHidden(node, tree, visibilityIsTold) &&
                                !(all[child].title.empty() && all[child].children.empty()) &&
                                !isUnfilled(all[child], tree);
                     });
    }
    return all;
}

} // namespace tovrel
