#include <algorithm>
#include <limits>

#include <nlohmann/json.hpp>

#include "app/terminal/JsonOutput.h"
#include "app/terminal/Table.h"
#include "app/verbs/CommandList.h"
#include "app/verbs/CommandRow.h"
#include "app/verbs/Verbs.h"
#include "commands/CommandSearch.h"
#include "commands/CommandSearchIndex.h"
#include "support/PrintableText.h"

namespace tovrel::verbs {
namespace {

json::Value toJson(const CommandSearchResult& result) {
    return {{"command", tovrel::toJson(result.command)}, {"score", result.score}};
}

/// The results that are shown, best first.
std::vector<CommandSearchResult> shownResults(const CommandSearchResults& results,
                                              const command_line::Invocation& invocation) {
    const std::size_t limit = invocation.limit.value_or(std::numeric_limits<std::size_t>::max());
    std::vector<CommandSearchResult> shown;
    const std::size_t count = std::min(limit, results.size());
    shown.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        shown.push_back(results[i]);
    }
    return shown;
}

/// One section for each query, with a heading where there are several.
class SectionPrinter {
  public:
    SectionPrinter(const Console& console, bool hasHeadings, bool showsIDs)
        : console_(console), hasHeadings_(hasHeadings), showsIDs_(showsIDs) {}

    void print(const std::string& query, const std::vector<CommandSearchResult>& results) {
        std::ostream& out = console_.output;
        if (hasHeadings_) {
            out << (isFirst_ ? "" : "\n") << '"' << printable(query) << "\":\n";
            isFirst_ = false;
        }
        if (results.empty()) {
            out << "nothing found\n";
            return;
        }
        std::vector<TableRow> rows;
        rows.reserve(results.size());
        for (const CommandSearchResult& result : results) {
            rows.push_back(commandRow(result.command, showsIDs_, console_.style));
        }
        printTable(out, rows, commandPathColumn, console_.style);
    }

  private:
    const Console& console_;
    bool hasHeadings_;
    bool showsIDs_;
    bool isFirst_ = true;
};

} // namespace

int search(const Context& context) {
    const command_line::Invocation& invocation = context.invocation;
    const Console& console = context.console;
    CommandList list = buildCommandList(context.source, context.preferences, context.textServices);
    const CommandSearchIndex index(std::move(list.commands), context.textServices);
    CommandSearch commandSearch;
    SectionPrinter sections(console, invocation.queries.size() > 1, invocation.showsIDs);
    const char* separator = "[";
    for (const std::string& query : invocation.queries) {
        const CommandSearchResults results = commandSearch.search(query, index);
        const auto shown = shownResults(results, invocation);
        if (invocation.asJson) {
            console.output << separator;
            printJsonArray(console.output, shown, [](const CommandSearchResult& r) { return toJson(r); });
            separator = ",";
        } else {
            sections.print(query, shown);
        }
    }
    if (invocation.asJson) {
        console.output << "]\n";
    }
    return reportShortfall(list.menus, console.error);
}

} // namespace tovrel::verbs
