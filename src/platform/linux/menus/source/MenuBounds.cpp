#include "platform/linux/menus/source/MenuBounds.h"

#include <deque>
#include <utility>
#include <vector>

namespace tovrel {

bool boundPaths(MenuTree& tree, std::size_t pathBytes) {
    if (tree.empty()) {
        return false;
    }
    bool isCut = false;
    std::size_t total = 0;
    std::deque<std::pair<std::size_t, std::size_t>> waiting{{0, 0}}; // Menus, and the bytes of their paths.
    while (!waiting.empty()) {
        const auto [menu, bytes] = waiting.front();
        waiting.pop_front();
        std::vector<std::size_t> kept;
        for (const std::size_t child : tree[menu].children) {
            const std::size_t title = tree[child].title.view().size();
            const std::size_t path = bytes + (title == 0 ? 0 : title + sizeof(Text));
            if (total + path > pathBytes) {
                isCut = true;
                continue;
            }
            total += path;
            kept.push_back(child);
            waiting.emplace_back(child, path);
        }
        tree[menu].children = std::move(kept);
    }
    return isCut;
}

} // namespace tovrel
