#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/Text.h"

namespace tovrel {

/// A menu item's keyboard shortcut in the terms of the menu attributes.
struct MenuShortcut {
    /// Value of "AXMenuItemCmdChar": the key's character, letters in lower case, or the function-key
    /// character (U+F700…) of a key that has none.
    Text character;
    /// Value of "AXMenuItemCmdModifiers": the sum of 1 Shift, 2 Option (Alt), 4 Control (Super or Meta) and
    /// 8 when Command (Control on the keyboard) is not among them.
    std::int64_t modifiers = 0;

    friend bool operator==(const MenuShortcut&, const MenuShortcut&) = default;
};

/// Each way in which toolkits write a shortcut. Absent for sequences of several strokes, for modifiers that
/// have no place in the attributes (Hyper, AltGr) and for keys without a character there (media keys, Print,
/// Pause, Menu): a shortcut shown in part would be a wrong one. Keys of the number pad count as the keys of
/// the same character elsewhere.

/// "<Primary><Shift>s", as GTK and, with "<Control>", Gecko write it.
std::optional<MenuShortcut> shortcutOfGtkAccelerator(std::string_view accelerator);

/// "Ctrl+Shift+S", as Qt and people write it.
std::optional<MenuShortcut> shortcutOfKeySequence(std::string_view sequence);

/// {"Control", "Shift", "s"}: one stroke of com.canonical.dbusmenu.
std::optional<MenuShortcut> shortcutOfKeyNames(const std::vector<std::string>& names);

} // namespace tovrel
