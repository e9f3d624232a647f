#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/linux/AtspiCalls.h"
#include "support/Text.h"

namespace tovrel {

/// Where an application's menu bar is.
struct AtspiMenuBar {
    std::string path;
    std::vector<std::string> children; ///< At least one.
    AtspiToolkit toolkit = AtspiToolkit::other;
};

/// Finds the menu bar of the front window below the application object at `root`: of the window with the
/// state "active", else of the one with this title, else of the first that has a bar with anything in it.
/// Windows without such a bar, such as dialogs, give way to the next.
///
/// Each window is searched level by level, so that of two bars the one nearer to the window is taken, without
/// entering objects that hold content instead of window parts. LibreOffice has two. The one that the user sees
/// is taken: it tells of changes only when a menu is opened, but presses and key bindings are right. The other,
/// in a root pane, has current states, but no item counts as visible, some keys are wrong, and after a press
/// the document gets no more keys.
///
/// Absent when there is none, in GTK 4 (whose bar is without entries until they are opened), or when the
/// calls were stopped: `calls.stopped()` tells. `isTooLarge` is set when a search ended at the limit of
/// objects.
std::optional<AtspiMenuBar> findAtspiMenuBar(AtspiCalls& calls, const std::string& root,
                                             const std::optional<Text>& windowTitle, bool& isTooLarge);

} // namespace tovrel
