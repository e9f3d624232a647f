#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "app/terminal/Console.h"
#include "app/terminal/TerminalText.h"

namespace tovrel {

struct TableRow {
    std::vector<std::string> cells; ///< Shown as printable(); rows may have different numbers.
    bool isDimmed = false;          ///< Shown only where there is colour.
};

/// The column that becomes narrower when the rows are wider than the terminal, and the side its cells are cut
/// on.
struct FlexibleColumn {
    std::size_t index = 0;
    terminal_text::ElideAt elideAt = terminal_text::ElideAt::end;
};

/// Prints the rows in aligned columns, two spaces apart. Columns that are empty in every row are left out. No
/// row is wider than the terminal, if there is one.
void printTable(std::ostream& out, const std::vector<TableRow>& rows, FlexibleColumn flexible,
                const OutputStyle& style);

} // namespace tovrel
