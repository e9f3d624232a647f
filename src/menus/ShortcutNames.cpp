#include "menus/ShortcutNames.h"

#include <algorithm>
#include <array>
#include <cstddef>
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

constexpr std::array arrowNames{
    GlyphName{"↑", "Up"},
    GlyphName{"↓", "Down"},
    GlyphName{"←", "Left"},
    GlyphName{"→", "Right"},
};

constexpr std::array keyNames{
    GlyphName{"Ins", "Insert"},  GlyphName{"⌦", "Delete"},  GlyphName{"↖", "Home"},
    GlyphName{"↘", "End"},       GlyphName{"⇞", "Page Up"}, GlyphName{"⇟", "Page Down"},
    GlyphName{"⌫", "Backspace"}, GlyphName{"⎋", "Escape"},  GlyphName{"↩", "Return"},
    GlyphName{"⇥", "Tab"},
};

/// The name of a glyph in the list; any other text is its own name.
template <std::size_t Size>
std::string_view nameOf(std::string_view text, const std::array<GlyphName, Size>& names) {
    const auto* named = std::find_if(names.begin(), names.end(),
                                     [text](const GlyphName& entry) { return entry.glyph == text; });
    return named == names.end() ? text : named->name;
}

} // namespace

Text shortcutWithKeyNames(const Text& shortcut) {
    std::string_view key = shortcut.view();
    std::string spelled;
    for (const GlyphName& modifier : modifierNames) {
        // A glyph at the end is the key itself.
        if (key.starts_with(modifier.glyph) && key.size() > modifier.glyph.size()) {
            spelled.append(modifier.name).append("+");
            key.remove_prefix(modifier.glyph.size());
        }
    }
    return spelled.append(nameOf(nameOf(key, arrowNames), keyNames));
}

Text keycapWithKeyName(const Text& keycap) {
    return nameOf(nameOf(keycap.view(), modifierNames), keyNames);
}

} // namespace tovrel
