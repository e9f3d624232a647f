#include "platform/linux/menus/source/MenuReading.h"

#include <chrono>
#include <utility>

namespace tovrel {

MenuReading finishedReading(MenuTree tree, bool isTooLarge, const BoundedCalls& calls, SteadyTime started) {
    const auto complete = tree.empty() ? MenuReadOutcome::noMenuBar
                          : isTooLarge ? MenuReadOutcome::treeTooLarge
                                       : MenuReadOutcome::completed;
    MenuReading reading;
    reading.report.outcome = calls.stopped().value_or(complete);
    reading.report.nodes = tree.size();
    reading.report.calls = calls.calls();
    reading.report.elapsed =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - started);
    reading.tree = std::move(tree);
    return reading;
}

} // namespace tovrel
