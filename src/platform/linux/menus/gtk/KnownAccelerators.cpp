#include "platform/linux/menus/gtk/KnownAccelerators.h"

#include <algorithm>
#include <any>
#include <cstddef>
#include <iterator>
#include <utility>

namespace tovrel {
namespace {

/// The action of an item; null for a menu and for an item that does nothing.
const GtkAction* actionOf(const MenuNode& node) {
    const auto* action = node.isMenu ? nullptr : std::any_cast<GtkAction>(&node.item);
    return action != nullptr && !action->name.empty() ? action : nullptr;
}

/// The items with an action that are part of the menu bar.
std::vector<std::size_t> itemsOf(const MenuTree& tree) {
    std::vector<std::size_t> items;
    for (const MenuNode& node : tree) {
        std::copy_if(node.children.begin(), node.children.end(), std::back_inserter(items),
                     [&](std::size_t child) { return actionOf(tree[child]) != nullptr; });
    }
    return items;
}

std::string keyOf(const GtkAction& action) {
    return action.busName + ' ' + action.objectPath + ' ' + action.name;
}

} // namespace

bool KnownAccelerators::addTo(MenuTree& tree, SteadyTime now) const {
    std::vector<std::pair<std::size_t, const Known*>> additions;
    for (const std::size_t item : itemsOf(tree)) {
        if (!tree[item].shortcut) {
            const Known* known = find(*actionOf(tree[item]), now);
            if (known == nullptr) {
                return false;
            }
            additions.emplace_back(item, known);
        }
    }
    for (const auto& [item, known] : additions) {
        tree[item].shortcut = known->shortcut;
    }
    return true;
}

void KnownAccelerators::learn(const MenuTree& tree, SteadyTime now) {
    for (auto& [key, entries] : known_) {
        std::erase_if(entries, [&](const Known& known) { return now - known.learnt >= lifetime; });
    }
    std::erase_if(known_, [](const auto& entries) { return entries.second.empty(); });
    for (const std::size_t item : itemsOf(tree)) {
        const GtkAction& action = *actionOf(tree[item]);
        std::vector<Known>& entries = known_[keyOf(action)];
        const auto entry = std::find_if(entries.begin(), entries.end(),
                                        [&](const Known& known) { return known.target == action.target; });
        if (entry == entries.end()) {
            entries.push_back({action.target, tree[item].shortcut, now});
        } else if (entry->learnt != now || tree[item].shortcut) {
            // If several items have one action, an item with a shortcut counts.
            *entry = {action.target, tree[item].shortcut, now};
        }
    }
}

const KnownAccelerators::Known* KnownAccelerators::find(const GtkAction& action, SteadyTime now) const {
    const auto entries = known_.find(keyOf(action));
    if (entries == known_.end()) {
        return nullptr;
    }
    const auto known = std::find_if(entries->second.begin(), entries->second.end(), [&](const Known& entry) {
        return entry.target == action.target && now - entry.learnt < lifetime;
    });
    return known == entries->second.end() ? nullptr : &*known;
}

} // namespace tovrel
