#pragma once

#include <optional>
#include <string_view>

#include "platform/linux/menus/accessibility/AtspiNode.h"
#include "platform/linux/menus/source/MenuShortcut.h"

namespace tovrel {

/// The shortcut in an answer of org.a11y.atspi.Action.GetKeyBinding, or, when that has none, in the part of
/// an item's name after a TAB (where Qt keeps a text that the program wrote itself).
///
/// GTK and Gecko answer "mnemonic;path;accelerator". Qt answers the accelerator, or, without one, the
/// mnemonic as "Alt+" and one character, so a true accelerator of that form cannot be recognised.
///
/// Absent for mnemonics, and for shortcuts that `MenuShortcut` cannot express.
std::optional<MenuShortcut> menuShortcut(std::string_view keyBinding, AtspiToolkit toolkit,
                                         std::string_view nameAfterTab);

} // namespace tovrel
