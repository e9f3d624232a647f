#pragma once

#include <chrono>
#include <cstddef>

namespace tovrel {

/// How a read of an application's menu bar ended. Only `completed` means that everything was read; otherwise
/// the part read by then is used.
enum class MenuReadOutcome {
    completed,
    applicationSilent,  ///< The application stopped answering: hung, or busy with something else.
    tooSlow,            ///< It answered, but not everything within the time for one read.
    treeTooLarge,       ///< It has more objects or more levels than one read takes.
    applicationGone,    ///< It left the bus meanwhile.
    noMenuBar,          ///< It shows no menu bar with entries.
    menusUnfilled,      ///< It has menus, but fills them only when they are opened (Gecko).
    notRegistered,      ///< No application with this process identifier publishes menus in a known way.
    noAccessibilityBus, ///< The bus cannot be reached or does not answer.
};

struct MenuReadReport {
    MenuReadOutcome outcome = MenuReadOutcome::completed;
    std::size_t nodes = 0; ///< Objects of the menu bar that were met, the bar itself included.
    std::size_t calls = 0; ///< Questions sent to the application.
    std::chrono::microseconds elapsed{0};
};

} // namespace tovrel
