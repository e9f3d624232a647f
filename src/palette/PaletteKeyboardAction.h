#pragma once

#include <cstdint>
#include <optional>
#include <variant>

#include "model/KeyEvent.h"
#include "support/Text.h"
#include "support/TextServices.h"

namespace tovrel {

/// Move the highlight by `delta` rows: −1 up, +1 down.
struct MoveSelection {
    std::int64_t delta = 0;

    friend bool operator==(const MoveSelection&, const MoveSelection&) = default;
};

/// Run the command that carries this shortcut text.
struct ExecuteShortcut {
    Text shortcut;

    friend bool operator==(const ExecuteShortcut&, const ExecuteShortcut&) = default;
};

/// Run the highlighted command.
struct ExecuteSelection {
    friend bool operator==(const ExecuteSelection&, const ExecuteSelection&) = default;
};

/// Close the palette.
struct Dismiss {
    friend bool operator==(const Dismiss&, const Dismiss&) = default;
};

/// What a key press means to the palette.
using PaletteKeyboardAction = std::variant<MoveSelection, ExecuteShortcut, ExecuteSelection, Dismiss>;

/// The meaning of a key event; absent when it is for the search field. A character with a modifier is never
/// for the field: it counts as a shortcut of the application's menus.
[[nodiscard]] std::optional<PaletteKeyboardAction> keyboardAction(const KeyEvent& event,
                                                                  const TextServices& textServices);

/// The shortcut text of a typed combination, in the form that menu items have (see shortcutText() in menus);
/// absent without a character, or without any of Shift, Control, Option and Command. Keys without a
/// character, which menus show by name, have none.
[[nodiscard]] std::optional<Text> typedShortcutText(const std::optional<Text>& keyCharacters,
                                                    ModifierFlags flags, const TextServices& textServices);

} // namespace tovrel
