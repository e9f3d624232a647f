#pragma once

#include <optional>
#include <string_view>

#include "platform/linux/menus/accessibility/AtspiNode.h"
#include "platform/linux/menus/source/MenuShortcut.h"

namespace tovrel {

/// The shortcut in an answer of org.a11y.atspi.Action.GetKeyBinding, or, when that holds none, in what an
/// item's name has after a TAB (Qt keeps there what the program wrote itself).
///
/// GTK and Gecko answer "mnemonic;path;accelerator"; Qt the accelerator, or the mnemonic as "Alt+" and one
/// character when there is no accelerator, which makes a true accelerator of that form unrecognisable.
///
/// Absent for mnemonics, and for what has no shortcut as `MenuShortcut` knows it.
std::optional<MenuShortcut> menuShortcut(std::string_view keyBinding, AtspiToolkit toolkit,
                                         std::string_view nameAfterTab);

} // namespace tovrel
