#include "KeyboardShortcuts/SymbolicText.h"

#include <algorithm>
#include <array>
#include <string>

#include "model/VirtualKeyCodes.h"

namespace tovrel {
namespace {

struct ModifierGlyph {
    std::int64_t carbonBit;
    const char* glyph;
};

constexpr std::array modifierGlyphs{
    ModifierGlyph{carbon_modifiers::control, "⌃"},
    ModifierGlyph{carbon_modifiers::option, "⌥"},
    ModifierGlyph{carbon_modifiers::shift, "⇧"},
    ModifierGlyph{carbon_modifiers::command, "⌘"},
    ModifierGlyph{carbon_modifiers::function, "\U0001F310\uFE0E"},
};

struct SpecialKey {
    std::int64_t keyCode;
    const char* text;
};

/// The texts of keys by virtual key code. U+20E3 draws a key around the character before it, for keys of the
/// number pad.
constexpr std::array specialKeys{
    SpecialKey{36, "↩"},       SpecialKey{51, "⌫"},       SpecialKey{117, "⌦"},
    SpecialKey{119, "↘"},      SpecialKey{53, "⎋"},       SpecialKey{114, "?\u20DD"},
    SpecialKey{115, "↖"},      SpecialKey{48, "⇥"},       SpecialKey{116, "⇞"},
    SpecialKey{121, "⇟"},      SpecialKey{126, "↑"},      SpecialKey{124, "→"},
    SpecialKey{125, "↓"},      SpecialKey{123, "←"},      SpecialKey{122, "F1"},
    SpecialKey{120, "F2"},     SpecialKey{99, "F3"},      SpecialKey{118, "F4"},
    SpecialKey{96, "F5"},      SpecialKey{97, "F6"},      SpecialKey{98, "F7"},
    SpecialKey{100, "F8"},     SpecialKey{101, "F9"},     SpecialKey{109, "F10"},
    SpecialKey{103, "F11"},    SpecialKey{111, "F12"},    SpecialKey{105, "F13"},
    SpecialKey{107, "F14"},    SpecialKey{113, "F15"},    SpecialKey{106, "F16"},
    SpecialKey{64, "F17"},     SpecialKey{79, "F18"},     SpecialKey{80, "F19"},
    SpecialKey{90, "F20"},     SpecialKey{82, "0\u20E3"}, SpecialKey{83, "1\u20E3"},
    SpecialKey{84, "2\u20E3"}, SpecialKey{85, "3\u20E3"}, SpecialKey{86, "4\u20E3"},
    SpecialKey{87, "5\u20E3"}, SpecialKey{88, "6\u20E3"}, SpecialKey{89, "7\u20E3"},
    SpecialKey{91, "8\u20E3"}, SpecialKey{92, "9\u20E3"}, SpecialKey{71, "☒\u20E3"},
    SpecialKey{65, ".\u20E3"}, SpecialKey{75, "/\u20E3"}, SpecialKey{76, "↩\u20E3"},
    SpecialKey{81, "=\u20E3"}, SpecialKey{78, "-\u20E3"}, SpecialKey{67, "*\u20E3"},
    SpecialKey{69, "+\u20E3"},
};

std::string capitalized(const Text& text, const TextServices& textServices) {
    const std::vector<std::string_view> clusters = textServices.graphemeClusters(text.view());
    if (clusters.empty()) {
        return {};
    }
    return textServices.uppercased(clusters.front()) +
           textServices.lowercased(text.view().substr(clusters.front().size()));
}

std::string keyText(std::int64_t keyCode, const CharacterForKeyCode& characterForKeyCode,
                    const TextServices& textServices, const Text& spaceKey) {
    if (keyCode == key_codes::space) {
        return capitalized(spaceKey, textServices);
    }
    const auto* const special = std::find_if(specialKeys.begin(), specialKeys.end(),
                                             [&](const SpecialKey& key) { return key.keyCode == keyCode; });
    if (special != specialKeys.end()) {
        return special->text;
    }
    const std::optional<Text> character = characterForKeyCode(static_cast<std::uint32_t>(keyCode));
    return character ? capitalized(*character, textServices) : "\uFFFD";
}

} // namespace

Text symbolicText(const Shortcut& shortcut, const CharacterForKeyCode& characterForKeyCode,
                  const TextServices& textServices, const Text& spaceKey) {
    std::string text;
    for (const ModifierGlyph& modifier : modifierGlyphs) {
        if ((shortcut.carbonModifiers & modifier.carbonBit) != 0) {
            text += modifier.glyph;
        }
    }
    return Text(text + keyText(shortcut.carbonKeyCode, characterForKeyCode, textServices, spaceKey));
}

} // namespace tovrel
