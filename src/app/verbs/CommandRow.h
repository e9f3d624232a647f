#pragma once

#include "app/terminal/Table.h"
#include "model/Command.h"

namespace tovrel {

/// A command as people read it: check mark, "File › Export", shortcut, and "disabled" unless colour shows it;
/// then its id, if that is wanted.
TableRow commandRow(const Command& command, bool showsID, const OutputStyle& style);

/// A narrow terminal cuts the path of such a row at its beginning, because the title is at its end.
inline constexpr FlexibleColumn commandPathColumn{.index = 1, .elideAt = terminal_text::ElideAt::start};

/// The cells for an item's state.
std::string checkMarkCell(bool isChecked);
std::string shortcutCell(const std::optional<Text>& shortcut);
std::string disabledCell(bool isEnabled, const OutputStyle& style);

} // namespace tovrel
