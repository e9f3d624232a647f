#include "palette/PaletteKeyboardAction.h"

#include <array>
#include <string>
#include <utility>

#include "model/VirtualKeyCodes.h"

namespace tovrel {
namespace {

constexpr std::array<std::pair<ModifierFlags, const char*>, 4> modifierGlyphs{{
    {modifier_flags::command, "⌘"},
    {modifier_flags::shift, "⇧"},
    {modifier_flags::option, "⌥"},
    {modifier_flags::control, "⌃"},
}};

constexpr ModifierFlags heldModifiers =
    modifier_flags::command | modifier_flags::shift | modifier_flags::option | modifier_flags::control;

} // namespace

std::optional<PaletteKeyboardAction> keyboardAction(const KeyEvent& event, const TextServices& textServices) {
    if (event.type != KeyEventType::keyDown) {
        return std::nullopt;
    }
    std::optional<Text> characters;
    if (event.charactersIgnoringModifiers) {
        characters = Text(textServices.lowercased(event.charactersIgnoringModifiers->view()));
    }
    if ((event.modifierFlags & modifier_flags::command) != 0 && characters == Text("w")) {
        return Dismiss{};
    }
    switch (event.keyCode) {
    case key_codes::escape:
        return Dismiss{};
    case key_codes::returnKey:
    case key_codes::keypadEnter:
        return ExecuteSelection{};
    case key_codes::downArrow:
        return MoveSelection{+1};
    case key_codes::upArrow:
        return MoveSelection{-1};
    default:
        break;
    }
    if ((event.modifierFlags & heldModifiers) == modifier_flags::control) {
        if (characters == Text("n")) {
            return MoveSelection{+1};
        }
        if (characters == Text("p")) {
            return MoveSelection{-1};
        }
    }
    if (auto shortcut = typedShortcutText(characters, event.modifierFlags, textServices)) {
        return ExecuteShortcut{*std::move(shortcut)};
    }
    return std::nullopt;
}

std::optional<Text> typedShortcutText(const std::optional<Text>& keyCharacters, ModifierFlags flags,
                                      const TextServices& textServices) {
    if (!keyCharacters || keyCharacters->empty() || (flags & heldModifiers) == 0) {
        return std::nullopt;
    }
    std::string text;
    for (const auto& [flag, glyph] : modifierGlyphs) {
        if ((flags & flag) != 0) {
            text += glyph;
        }
    }
    return Text(text + textServices.uppercased(keyCharacters->view()));
}

} // namespace tovrel
