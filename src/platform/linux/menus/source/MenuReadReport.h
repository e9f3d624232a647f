#pragma once

#include <chrono>
#include <cstddef>

namespace tovrel {

/// How a read of an application's menu bar ended. Only `completed` has read everything; what the others had
/// read by then is used.
enum class MenuReadOutcome {
    completed,
    applicationSilent,  ///< The application stopped answering: hung, or busy with something else.
    tooSlow,            ///< It answered, but not everything within the time for one read.
    treeTooLarge,       ///< It has more objects or more levels than one read takes.
    applicationGone,    ///< It left the bus meanwhile.
    noMenuBar,          ///< It shows no menu bar with anything in it.
    menusUnfilled,      ///< It has menus, and will put something into them when they are opened (Gecko).
    notRegistered,      ///< No application of this process identifier publishes menus in a way that is known.
    noAccessibilityBus, ///< The bus cannot be reached or does not answer.
};

struct MenuReadReport {
    MenuReadOutcome outcome = MenuReadOutcome::completed;
    std::size_t nodes = 0; ///< Objects of the menu bar that were met, the bar itself included.
    std::size_t calls = 0; ///< Questions sent to the application.
    std::chrono::microseconds elapsed{0};
};

} // namespace tovrel
