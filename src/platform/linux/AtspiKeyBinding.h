#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/linux/AtspiNode.h"
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

/// The shortcut in an answer of org.a11y.atspi.Action.GetKeyBinding, or, when that holds none, in what an
/// item's name has after a TAB (Qt keeps there what the program wrote itself).
///
/// GTK and Gecko answer "mnemonic;path;accelerator"; Qt the accelerator, or the mnemonic as "Alt+" and one
/// character when there is no accelerator, which makes a true accelerator of that form unrecognisable.
///
/// Absent for mnemonics, for sequences of several strokes, for modifiers that have no place in the attributes
/// (Hyper, AltGr) and for keys without a character there (media keys, Print, Pause, Menu): a shortcut shown
/// in part would be a wrong one. Keys of the number pad count as the keys of the same character elsewhere.
std::optional<MenuShortcut> menuShortcut(std::string_view keyBinding, AtspiToolkit toolkit,
                                         std::string_view nameAfterTab);

} // namespace tovrel
