#include "menus/ShortcutNames.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace tovrel {
namespace {

struct GlyphName {
    std::string_view glyph;
    std::string_view name;
};

constexpr std::array modifierNames{
    GlyphName{"⌘", "Ctrl"},
    GlyphName{"⇧", "Shift"},
    GlyphName{"⌥", "Alt"},
    GlyphName{"⌃", "Super"},
};

constexpr std::array keyNames{
    GlyphName{"↑", "Up"},        GlyphName{"↓", "Down"},      GlyphName{"←", "Left"},
    GlyphName{"→", "Right"},     GlyphName{"Ins", "Insert"},  GlyphName{"⌦", "Delete"},
    GlyphName{"↖", "Home"},      GlyphName{"↘", "End"},       GlyphName{"⇞", "Page Up"},
    GlyphName{"⇟", "Page Down"}, GlyphName{"⌫", "Backspace"}, GlyphName{"⎋", "Escape"},
    GlyphName{"↩", "Return"},    GlyphName{"⇥", "Tab"},
};

} // namespace

Text shortcutWithKeyNames(const Text& shortcut) {
    std::string_view key = shortcut.view();
    std::string spelled;
    for (const GlyphName& modifier : modifierNames) {
        // A glyph that is all there is left is the key itself.
        if (key.starts_with(modifier.glyph) && key.size() > modifier.glyph.size()) {
            spelled.append(modifier.name).append("+");
            key.remove_prefix(modifier.glyph.size());
        }
    }
    const auto* named = std::find_if(keyNames.begin(), keyNames.end(),
                                     [key](const GlyphName& entry) { return entry.glyph == key; });
    return spelled.append(named == keyNames.end() ? key : named->name);
}

} // namespace tovrel
