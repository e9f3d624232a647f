#include "settings/WindowMenu.h"

#include <algorithm>

namespace tovrel::window_menu {

const Item* itemWith(const Shortcut& shortcut, const CharacterForKeyCode& characterForKeyCode) {
    if (shortcut.carbonModifiers != carbon_modifiers::command) {
        return nullptr;
    }
    const auto character = characterForKeyCode(static_cast<std::uint32_t>(shortcut.carbonKeyCode));
    const auto* const found = std::find_if(items.begin(), items.end(), [&](const Item& item) {
        return character && *character == Text(item.keyEquivalent);
    });
    return found == items.end() ? nullptr : found;
}

} // namespace tovrel::window_menu
