#pragma once

#include "app/terminal/Table.h"
#include "model/Command.h"

namespace tovrel {

/// A row for a command: check mark, "File › Export", shortcut, "disabled" unless colour shows it, and the id
/// if it is wanted.
TableRow commandRow(const Command& command, bool showsID, const OutputStyle& style);

/// The column with the path, which a narrow terminal cuts at its beginning because the title is at its end.
inline constexpr FlexibleColumn commandPathColumn{.index = 1, .elideAt = terminal_text::ElideAt::start};

/// Cells for an item's state.
std::string checkMarkCell(bool isChecked);
std::string shortcutCell(const std::optional<Text>& shortcut);
std::string disabledCell(bool isEnabled, const OutputStyle& style);

} // namespace tovrel
