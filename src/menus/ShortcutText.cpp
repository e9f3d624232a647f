#include "menus/ShortcutText.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace tovrel {
namespace {

struct KeyName {
    std::string_view character;
    std::string_view name;
};

constexpr std::array keyNames{
    KeyName{"\uF700", "↑"},   KeyName{"\uF701", "↓"},   KeyName{"\uF702", "←"},    KeyName{"\uF703", "→"},
    KeyName{"\uF704", "F1"},  KeyName{"\uF705", "F2"},  KeyName{"\uF706", "F3"},   KeyName{"\uF707", "F4"},
    KeyName{"\uF708", "F5"},  KeyName{"\uF709", "F6"},  KeyName{"\uF70A", "F7"},   KeyName{"\uF70B", "F8"},
    KeyName{"\uF70C", "F9"},  KeyName{"\uF70D", "F10"}, KeyName{"\uF70E", "F11"},  KeyName{"\uF70F", "F12"},
    KeyName{"\uF727", "Ins"}, KeyName{"\uF728", "⌦"},   KeyName{"\uF729", "↖"},    KeyName{"\uF72B", "↘"},
    KeyName{"\uF72C", "⇞"},   KeyName{"\uF72D", "⇟"},   KeyName{"\uF746", "Help"}, KeyName{"\x7F", "⌫"},
    KeyName{"\x1B", "⎋"},     KeyName{"\r", "↩"},       KeyName{"\t", "⇥"},        KeyName{" ", "Space"},
};

} // namespace

Text shortcutText(const Text& commandCharacter, std::int64_t modifiers, const TextServices& textServices) {
    const auto has = [modifiers](std::int64_t bit) { return (modifiers & bit) != 0; };
    std::string text;
    text += has(menu_modifiers::noCommand) ? "" : "⌘";
    text += has(menu_modifiers::shift) ? "⇧" : "";
    text += has(menu_modifiers::option) ? "⌥" : "";
    text += has(menu_modifiers::control) ? "⌃" : "";
    const auto* named = std::find_if(keyNames.begin(), keyNames.end(), [&](const KeyName& key) {
        return key.character == commandCharacter.view();
    });
    if (named != keyNames.end()) {
        text += named->name;
    } else {
        text += textServices.uppercased(commandCharacter.view());
    }
    return text;
}

} // namespace tovrel
