#include "app/terminal/TerminalText.h"

#include <sstream>

#include <gtest/gtest.h>

#include "app/terminal/Table.h"

namespace tovrel::terminal_text {
namespace {

TEST(TerminalText, WidthCountsColumns) {
    EXPECT_EQ(displayWidth("Save"), 4U);
    EXPECT_EQ(displayWidth("ファイル"), 8U);
    EXPECT_EQ(displayWidth("Ａ"), 2U);
    EXPECT_EQ(displayWidth("ﾌ"), 1U); // half-width
    EXPECT_EQ(displayWidth("e\u0301\u0323"), 1U);
    EXPECT_EQ(displayWidth("\u1112\u1161\u11AB"), 2U); // one syllable in three letters
    EXPECT_EQ(displayWidth("👍"), 2U);
    EXPECT_EQ(displayWidth("a\u200Bb"), 2U);
}

TEST(TerminalText, ElidesToTheWidth) {
    EXPECT_EQ(elided("Save As", 7, ElideAt::end), "Save As");
    EXPECT_EQ(elided("Save As", 6, ElideAt::end), "Save …");
    EXPECT_EQ(elided("Save As", 6, ElideAt::start), "…ve As");
    EXPECT_EQ(elided("ファイル", 6, ElideAt::end), "ファ…"); // no half of a wide character
    EXPECT_EQ(elided("ファイル", 6, ElideAt::start), "…イル");
    EXPECT_EQ(elided("ae\u0301x", 2, ElideAt::end), "a…");
    EXPECT_EQ(elided("xxe\u0301", 2, ElideAt::start), "…e\u0301");
    EXPECT_EQ(elided("e\u0301xx", 2, ElideAt::end), "e\u0301…");
    EXPECT_EQ(elided("xx", 1, ElideAt::start), "…");
    EXPECT_EQ(elided("xx", 0, ElideAt::end), "");
}

std::string printed(const std::vector<TableRow>& rows, FlexibleColumn flexible, const OutputStyle& style) {
    std::ostringstream out;
    printTable(out, rows, flexible, style);
    return out.str();
}

TEST(Table, AlignsColumnsByDisplayWidth) {
    EXPECT_EQ(printed({{.cells = {"", "ファイル", "Ctrl+S"}},
                       {.cells = {"", "e\u0301", ""}},
                       {.cells = {}},
                       {.cells = {"", "Print\nor not", "F1"}, .isDimmed = true}},
                      {.index = 1}, {}),
              "ファイル      Ctrl+S\ne\u0301\n\nPrint␊or not  F1\n");
}

TEST(Table, KeepsWithinTheTerminalAndDimsWithColour) {
    const std::vector<TableRow> rows{{.cells = {"✓", "View › Sidebar › Bookmarks", "Ctrl+B"}},
                                     {.cells = {"", "Undo", "Ctrl+Shift+Z"}, .isDimmed = true}};
    EXPECT_EQ(printed(rows, {.index = 1, .elideAt = ElideAt::start}, {.hasColour = true, .width = 32}),
              "✓  …ar › Bookmarks  Ctrl+B\n\x1b[2m   Undo             Ctrl+Shift+Z\x1b[0m\n");
    // Below the least width of the flexible column the whole line is cut.
    EXPECT_EQ(printed(rows, {.index = 1}, {.hasColour = false, .width = 20}),
              "✓  View › Side…  Ct…\n   Undo          Ct…\n");
}

} // namespace
} // namespace tovrel::terminal_text
