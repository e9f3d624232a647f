#include "platform/linux/menus/source/MenuReading.h"

#include <chrono>
#include <utility>

#include "model/MenuTitle.h"

namespace tovrel {

MenuReading emptyReading() {
    MenuReading reading;
    reading.report.outcome = MenuReadOutcome::noMenuBar;
    return reading;
}

MenuReading finishedReading(MenuTree tree, bool isTooLarge, const BoundedCalls& calls, SteadyTime started) {
    MenuReading reading;
    reading.report.outcome = calls.stopped() ? outcomeOf(*calls.stopped())
                             : tree.empty()  ? MenuReadOutcome::noMenuBar
                             : isTooLarge    ? MenuReadOutcome::treeTooLarge
                                             : MenuReadOutcome::completed;
    reading.report.nodes = tree.size();
    reading.report.calls = calls.calls();
    reading.report.elapsed =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - started);
    reading.tree = std::move(tree);
    return reading;
}

MenuReadOutcome outcomeOf(CallsStopped stopped) {
    switch (stopped) {
    case CallsStopped::silent:
        return MenuReadOutcome::applicationSilent;
    case CallsStopped::tooSlow:
        return MenuReadOutcome::tooSlow;
    case CallsStopped::tooMuch:
        return MenuReadOutcome::treeTooLarge;
    case CallsStopped::gone:
        return MenuReadOutcome::applicationGone;
    case CallsStopped::disconnected:
        break;
    }
    return MenuReadOutcome::noAccessibilityBus;
}

bool isUnreachable(MenuReadOutcome outcome) {
    return outcome == MenuReadOutcome::applicationSilent || outcome == MenuReadOutcome::tooSlow ||
           outcome == MenuReadOutcome::applicationGone;
}

bool leavesCallsBehind(MenuReadOutcome outcome) {
    return outcome == MenuReadOutcome::applicationSilent || outcome == MenuReadOutcome::tooSlow ||
           outcome == MenuReadOutcome::treeTooLarge;
}

std::string_view keptTitle(std::string_view text, AnswerBudget& budget) {
    return budget.keptInFull(text.substr(0, longestMenuName));
}

} // namespace tovrel
