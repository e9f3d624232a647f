#include <nlohmann/json.hpp>

#include "app/terminal/JsonOutput.h"
#include "app/terminal/Table.h"
#include "app/verbs/CommandList.h"
#include "app/verbs/CommandRow.h"
#include "app/verbs/Verbs.h"

namespace tovrel::verbs {

int commands(const Context& context) {
    const Console& console = context.console;
    const CommandList list = buildCommandList(context.source, context.preferences, context.textServices);
    if (context.invocation.asJson) {
        printJsonArray(console.output, list.commands, [](const Command& command) { return toJson(command); });
        console.output << '\n';
    } else {
        std::vector<TableRow> rows;
        rows.reserve(list.commands.size());
        for (const Command& command : list.commands) {
            rows.push_back(commandRow(command, context.invocation.showsIDs, console.style));
        }
        printTable(console.output, rows, commandPathColumn, console.style);
    }
    return reportShortfall(list.menus, console.error);
}

} // namespace tovrel::verbs
