#pragma once

#include <array>
#include <optional>

#include "KeyboardShortcuts/SymbolicText.h"
#include "model/Shortcut.h"
#include "support/LocalizedString.h"
#include "support/Text.h"

/// The settings window's own key combinations.
namespace tovrel::window_menu {

enum class Action { openSettings, closeWindow, quit };

struct Item {
    Action action;
    const char* keyEquivalent; ///< One character, used with the Command modifier.
};

inline constexpr std::array items{Item{Action::openSettings, ","}, Item{Action::closeWindow, "w"},
                                  Item{Action::quit, "q"}};

/// The action of the combination; absent when no item has it.
[[nodiscard]] std::optional<Action> actionOf(const Shortcut& shortcut,
                                             const CharacterForKeyCode& characterForKeyCode);

[[nodiscard]] Text title(Action action, const LocalizedString& localized);

} // namespace tovrel::window_menu
