#pragma once

#include <array>
#include <optional>

#include "KeyboardShortcuts/SymbolicText.h"
#include "model/Shortcut.h"

/// What the settings window does at a keystroke of its own.
namespace tovrel::window_menu {

enum class Action { openSettings, closeWindow, quit };

struct Item {
    Action action;
    const char* title;         ///< A key of the translations.
    const char* keyEquivalent; ///< One character, used with the Command modifier.
};

inline constexpr std::array items{Item{Action::openSettings, "Settings…", ","},
                                  Item{Action::closeWindow, "Close Window", "w"},
                                  Item{Action::quit, "Quit Tovrel", "q"}};

/// The item with that combination; null when none has it.
[[nodiscard]] const Item* itemWith(const Shortcut& shortcut, const CharacterForKeyCode& characterForKeyCode);

} // namespace tovrel::window_menu
