#include "app/terminal/ErrorLine.h"
#include "app/terminal/Failure.h"
#include "app/verbs/Verbs.h"
#include "platform/memory/Recording.h"
#include "support/PrintableText.h"

namespace tovrel::verbs {

int record(const Context& context) {
    const MenuSource& source = context.source;
    const RunningApplication& application = *source.application;
    const auto root = source.accessibility->applicationElement(application.processIdentifier());
    const recording::Document document = recording::write(application, root.get());
    const auto shortfall = source.shortfall ? source.shortfall() : std::nullopt;
    if (shortfall && document.elements == 0) {
        throw Failure(shortfall->reason);
    }
    context.console.output << printableJson(document.json);
    if (shortfall) {
        printErrorLine(context.console.error,
                       shortfall->reason + "; the recording has what was read before that");
    } else if (!document.isComplete) {
        printErrorLine(context.console.error,
                       "the menus are too large; the recording has only a part of them");
    }
    return 0;
}

} // namespace tovrel::verbs
