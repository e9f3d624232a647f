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
    bool isDimmed = false;          ///< Has an effect only with colour.
};

/// The column that becomes narrower when the rows are wider than the terminal, and the side on which its
/// cells are cut.
struct FlexibleColumn {
    std::size_t index = 0;
    terminal_text::ElideAt elideAt = terminal_text::ElideAt::end;
};

/// Prints the rows in aligned columns, two spaces apart. Columns that are empty in every row are left out. No
/// row is wider than the terminal, if its width is known.
void printTable(std::ostream& out, const std::vector<TableRow>& rows, FlexibleColumn flexible,
                const OutputStyle& style);

} // namespace tovrel
