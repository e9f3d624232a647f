#include "LibatspiWalk.h"

#include <memory>

#include <atspi/atspi.h>

namespace tovrel {
namespace {

struct Unref {
    void operator()(void* object) const { g_object_unref(object); }
};
struct Free {
    void operator()(void* memory) const { g_free(memory); }
};
using Accessible = std::unique_ptr<AtspiAccessible, Unref>;
using String = std::unique_ptr<char, Free>;

/// The search depth of the compared reader, which enters the same kinds of window parts.
constexpr int searchedDepth = 8;

bool holdsContent(AtspiRole role) {
    return role == ATSPI_ROLE_TEXT || role == ATSPI_ROLE_TABLE || role == ATSPI_ROLE_TREE ||
           role == ATSPI_ROLE_TREE_TABLE || role == ATSPI_ROLE_LIST || role == ATSPI_ROLE_MENU ||
           role == ATSPI_ROLE_PUSH_BUTTON || role == ATSPI_ROLE_DOCUMENT_FRAME;
}

Accessible menuBarBelow(AtspiAccessible* parent, int depth) {
    const int count = depth < searchedDepth ? atspi_accessible_get_child_count(parent, nullptr) : 0;
    for (int index = 0; index < count; ++index) {
        Accessible child(atspi_accessible_get_child_at_index(parent, index, nullptr));
        if (!child) {
            continue;
        }
        const AtspiRole role = atspi_accessible_get_role(child.get(), nullptr);
        if (role == ATSPI_ROLE_MENU_BAR) {
            return child;
        }
        if (!holdsContent(role)) {
            if (Accessible found = menuBarBelow(child.get(), depth + 1)) {
                return found;
            }
        }
    }
    return nullptr;
}

std::size_t walk(AtspiAccessible* node) {
    const String name(atspi_accessible_get_name(node, nullptr));
    atspi_accessible_get_role(node, nullptr);
    const std::unique_ptr<AtspiStateSet, Unref> states(atspi_accessible_get_state_set(node));
    const std::unique_ptr<AtspiAction, Unref> action(atspi_accessible_get_action_iface(node));
    if (action) {
        const String binding(atspi_action_get_key_binding(action.get(), 0, nullptr));
    }
    std::size_t nodes = 1;
    const int count = atspi_accessible_get_child_count(node, nullptr);
    for (int index = 0; index < count; ++index) {
        const Accessible child(atspi_accessible_get_child_at_index(node, index, nullptr));
        nodes += child ? walk(child.get()) : 0;
    }
    return nodes;
}

} // namespace

std::size_t walkMenusWithLibatspi(std::int32_t processIdentifier) {
    atspi_init();
    std::size_t nodes = 0;
    const Accessible desktop(atspi_get_desktop(0));
    const int count = desktop ? atspi_accessible_get_child_count(desktop.get(), nullptr) : 0;
    for (int index = 0; index < count && nodes == 0; ++index) {
        const Accessible application(atspi_accessible_get_child_at_index(desktop.get(), index, nullptr));
        if (application && static_cast<std::int32_t>(atspi_accessible_get_process_id(
                               application.get(), nullptr)) == processIdentifier) {
            const Accessible bar = menuBarBelow(application.get(), 0);
            nodes = bar ? walk(bar.get()) : 0;
        }
    }
    atspi_exit();
    return nodes;
}

} // namespace tovrel
