#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/linux/menus/accessibility/AtspiCalls.h"
#include "support/Text.h"

namespace tovrel {

/// Where an application's menu bar is.
struct AtspiMenuBar {
    std::string path;
    std::vector<std::string> children; ///< At least one.
    AtspiToolkit toolkit = AtspiToolkit::other;
    bool isInRootPane = false; ///< See `AtspiRootPanes`.
};

/// LibreOffice has two menu bars over GTK. The one that the user sees tells of changes only when a menu is
/// opened. The other, in a root pane, has current states; but it holds items that the user never sees, some
/// of its keys are wrong, and after a press there the document gets no more keys, and the next press ends the
/// office. So it is good for reading only.
enum class AtspiRootPanes { passedBy, entered };

/// Finds the menu bar of a window below the application object at `root`: of the one with this title, of
/// several preferably the one with the state "active"; without such a title of the active one; else of the
/// first that has a bar with anything in it. Windows without such a bar, such as dialogs, give way to the
/// next.
///
/// Each window is searched level by level, so that of two bars the one nearer to the window is taken, without
/// entering objects that hold content instead of window parts.
///
/// Absent when there is none, in GTK 4 (whose bar is without entries until they are opened), or when the
/// calls were stopped: `calls.stopped()` tells. `isTooLarge` is set when a search ended at the limit of
/// objects.
std::optional<AtspiMenuBar> findAtspiMenuBar(AtspiCalls& calls, const std::string& root,
                                             const std::optional<Text>& windowTitle, AtspiRootPanes rootPanes,
                                             bool& isTooLarge);

} // namespace tovrel
