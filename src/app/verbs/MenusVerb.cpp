#include <nlohmann/json.hpp>

#include "app/terminal/JsonOutput.h"
#include "app/terminal/Table.h"
#include "app/verbs/CommandRow.h"
#include "app/verbs/ScannedMenuItemJson.h"
#include "app/verbs/ScannedMenus.h"
#include "app/verbs/Verbs.h"

namespace tovrel::verbs {
namespace {

/// One row for each titled item, indented by its level; an untitled container takes no row and no level.
void appendRows(const std::vector<ScannedMenuItem>& items, std::size_t level, const OutputStyle& style,
                std::vector<TableRow>& rows) {
    constexpr std::size_t indentation = 2;
    for (const ScannedMenuItem& item : items) {
        if (item.title.empty()) {
            appendRows(item.children, level, style, rows);
            continue;
        }
        rows.push_back({.cells = {checkMarkCell(item.isChecked),
                                  std::string(level * indentation, ' ') + item.title.utf8(),
                                  shortcutCell(item.shortcut), disabledCell(item.isEnabled, style)},
                        .isDimmed = !item.isEnabled});
        appendRows(item.children, level + 1, style, rows);
    }
}

} // namespace

int menus(const Context& context) {
    const Console& console = context.console;
    const ScannedMenus scanned = scanMenus(context.source, context.textServices);
    if (context.invocation.asJson) {
        printJsonArray(console.output, scanned.items,
                       [](const ScannedMenuItem& item) { return toJson(item); });
        console.output << '\n';
    } else {
        std::vector<TableRow> rows;
        appendRows(scanned.items, 0, console.style, rows);
        printTable(console.output, rows, {.index = 1}, console.style);
    }
    return reportShortfall(scanned, console.error);
}

} // namespace tovrel::verbs
