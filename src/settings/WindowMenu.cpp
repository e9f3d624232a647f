#include "settings/WindowMenu.h"

#include <algorithm>

#include "support/Fatal.h"

namespace tovrel::window_menu {

std::optional<Action> actionOf(const Shortcut& shortcut, const CharacterForKeyCode& characterForKeyCode) {
    if (shortcut.carbonModifiers != carbon_modifiers::command) {
        return std::nullopt;
    }
    const auto character = characterForKeyCode(static_cast<std::uint32_t>(shortcut.carbonKeyCode));
    const auto* const found = std::find_if(items.begin(), items.end(), [&](const Item& item) {
        return character && *character == Text(item.keyEquivalent);
    });
    return found == items.end() ? std::nullopt : std::optional(found->action);
}

Text title(Action action, const LocalizedString& localized) {
    switch (action) {
    case Action::openSettings:
        return localized("StatusMenu", "Settings…");
    case Action::closeWindow:
        return localized("WindowMenu", "Close Window");
    case Action::quit:
        return localized("StatusMenu", "Quit Tovrel");
    }
    noSuchValue("window_menu::Action");
}

} // namespace tovrel::window_menu
