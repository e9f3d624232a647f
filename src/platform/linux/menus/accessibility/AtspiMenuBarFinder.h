#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/linux/menus/accessibility/AtspiCalls.h"
#include "support/Text.h"

namespace tovrel {

/// The place of an application's menu bar.
struct AtspiMenuBar {
    std::string path;
    std::vector<std::string> children; ///< At least one.
    AtspiToolkit toolkit = AtspiToolkit::other;
    bool isInRootPane = false; ///< See `AtspiRootPanes`.
};

/// LibreOffice has two menu bars over GTK. The one that the user sees updates its states only when a menu is
/// opened. The other, in a root pane, has current states; but it has items that the user never sees, some of
/// its keys are wrong, and after a press there the document gets no more keys, and the next press crashes the
/// office. So it is only for reading.
enum class AtspiRootPanes { passedBy, entered };

/// Finds the menu bar of a window below the application object at `root`. A window with this title comes
/// first, preferably one with the state "active", then the active window, then the others. The first window
/// that has a bar with entries counts; others, such as dialogs, are skipped.
///
/// Each window is searched level by level, so that the bar nearest to the window is found. Objects that have
/// content instead of window parts are not entered.
///
/// Absent when there is no such bar, in GTK 4 (whose bar has no entries until they are opened), or when the
/// calls were stopped, which `calls.stopped()` tells. `isTooLarge` is set when a search ended at the limit of
/// objects.
std::optional<AtspiMenuBar> findAtspiMenuBar(AtspiCalls& calls, const std::string& root,
                                             const std::optional<Text>& windowTitle, AtspiRootPanes rootPanes,
                                             bool& isTooLarge);

} // namespace tovrel
