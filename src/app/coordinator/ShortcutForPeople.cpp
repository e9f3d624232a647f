#include "app/coordinator/ShortcutForPeople.h"

#include <array>
#include <string>
#include <utility>

#include "menus/ShortcutNames.h"

namespace tovrel {
namespace {

constexpr std::array<std::pair<std::int64_t, const char*>, 5> modifierNames{{
    {carbon_modifiers::command, "Ctrl+"},
    {carbon_modifiers::shift, "Shift+"},
    {carbon_modifiers::option, "Alt+"},
    {carbon_modifiers::control, "Super+"},
    {carbon_modifiers::function, "Fn+"},
}};

} // namespace

Text shortcutForPeople(const Shortcut& shortcut, const CharacterForKeyCode& characterForKeyCode,
                       const TextServices& textServices, const LocalizedString& localized) {
    std::string text;
    for (const auto& [bit, name] : modifierNames) {
        if ((shortcut.carbonModifiers & bit) != 0) {
            text += name;
        }
    }
    const Text key = symbolicText({shortcut.carbonKeyCode, 0}, characterForKeyCode, textServices,
                                  localized("KeyboardShortcuts", "space_key"));
    return Text(text + shortcutWithKeyNames(key).utf8());
}

} // namespace tovrel
