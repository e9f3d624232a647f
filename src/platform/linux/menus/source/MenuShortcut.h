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
    /// Value of "AXMenuItemCmdChar": the key's character, a letter in lower case, or the function-key
    /// character (U+F700…) of a key without one.
    Text character;
    /// Value of "AXMenuItemCmdModifiers": the sum of 1 Shift, 2 Option (Alt), 4 Control (Super or Meta) and
    /// 8 when Command (Control on the keyboard) is not among them.
    std::int64_t modifiers = 0;

    friend bool operator==(const MenuShortcut&, const MenuShortcut&) = default;
};

/// The following functions parse the forms in which toolkits write a shortcut. Absent for sequences of
/// several strokes, for modifiers that the attributes do not have (Hyper, AltGr) and for keys without a
/// character there (media keys, Print, Pause, Menu), because a part of a shortcut would be wrong. Keys of the
/// number pad count as the other keys with the same character.

/// The form of GTK, "<Primary><Shift>s", and of Gecko, which writes "<Control>".
std::optional<MenuShortcut> shortcutOfGtkAccelerator(std::string_view accelerator);

/// The form of Qt and of people, "Ctrl+Shift+S".
std::optional<MenuShortcut> shortcutOfKeySequence(std::string_view sequence);

/// The form of com.canonical.dbusmenu for one stroke, {"Control", "Shift", "s"}.
std::optional<MenuShortcut> shortcutOfKeyNames(const std::vector<std::string>& names);

} // namespace tovrel
