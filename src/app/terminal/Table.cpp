#include "app/terminal/Table.h"

#include <algorithm>

#include "support/PrintableText.h"

namespace tovrel {
namespace {

using terminal_text::displayWidth;
using terminal_text::ElideAt;
using terminal_text::elided;

constexpr std::size_t gap = 2;
constexpr std::size_t narrowestColumn = 12; ///< The least width of the flexible column.

std::vector<TableRow> printableRows(const std::vector<TableRow>& rows) {
    std::vector<TableRow> shown = rows;
    for (TableRow& row : shown) {
        for (std::string& cell : row.cells) {
            cell = printable(cell);
        }
    }
    return shown;
}

std::vector<std::size_t> columnWidths(const std::vector<TableRow>& rows) {
    std::vector<std::size_t> widths;
    for (const TableRow& row : rows) {
        widths.resize(std::max(widths.size(), row.cells.size()));
        for (std::size_t column = 0; column < row.cells.size(); ++column) {
            widths[column] = std::max(widths[column], displayWidth(row.cells[column]));
        }
    }
    return widths;
}

void shrink(std::vector<std::size_t>& widths, std::size_t flexible, std::size_t available) {
    std::size_t total = 0;
    for (const std::size_t width : widths) {
        total += width + (width > 0 && total > 0 ? gap : 0);
    }
    if (total > available && flexible < widths.size()) {
        const std::size_t excess = total - available;
        const std::size_t least = std::min(widths[flexible], narrowestColumn);
        widths[flexible] = std::max(widths[flexible] - std::min(widths[flexible], excess), least);
    }
}

/// The cells padded to the columns, without spaces at the end.
std::string lineOf(const TableRow& row, const std::vector<std::size_t>& widths, FlexibleColumn flexible) {
    std::string line;
    std::size_t pending = 0;
    for (std::size_t column = 0; column < row.cells.size(); ++column) {
        if (widths[column] == 0) {
            continue;
        }
        const std::string cell = column == flexible.index
                                     ? elided(row.cells[column], widths[column], flexible.elideAt)
                                     : row.cells[column];
        if (!cell.empty()) {
            line.append(pending, ' ').append(cell);
            pending = 0;
        }
        pending += widths[column] - displayWidth(cell) + gap;
    }
    return line;
}

} // namespace

void printTable(std::ostream& out, const std::vector<TableRow>& rows, FlexibleColumn flexible,
                const OutputStyle& style) {
    const std::vector<TableRow> shown = printableRows(rows);
    std::vector<std::size_t> widths = columnWidths(shown);
    if (style.width) {
        shrink(widths, flexible.index, *style.width);
    }
    for (const TableRow& row : shown) {
        std::string line = lineOf(row, widths, flexible);
        if (style.width) {
            line = elided(line, *style.width, ElideAt::end);
        }
        const bool isDimmed = row.isDimmed && style.hasColour;
        out << (isDimmed ? "\x1b[2m" : "") << line << (isDimmed ? "\x1b[0m" : "") << '\n';
    }
}

} // namespace tovrel
