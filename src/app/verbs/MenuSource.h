#pragma once

#include <functional>
#include <istream>
#include <memory>
#include <optional>

#include "app/desktop/Desktop.h"
#include "app/verbs/CommandLine.h"
#include "platform/Accessibility.h"
#include "platform/RunningApplication.h"

namespace tovrel {

/// An application, live or recorded, and the accessibility service that reads its menus.
struct MenuSource {
    std::shared_ptr<RunningApplication> application;
    std::shared_ptr<Accessibility> accessibility;
    bool isRecording = false; ///< The menus belong to no running application and cannot be pressed.
    /// Tells what was missing in the last read; absent when nothing was. Null where reads are always
    /// complete.
    std::function<std::optional<MenuReadShortfall>()> shortfall;
    /// Brings the application to the front and waits up to half a second for that. Returns false when it was
    /// in front already or could not be brought there. Null when no live application can be activated.
    std::function<bool()> bringToFront;
};

/// The source that the options name. `standardInput` is read for a recording file named "-". Throws Failure
/// when the source is not available.
MenuSource resolveMenuSource(const command_line::MenuSourceOptions& options, std::istream& standardInput);

/// The source of a running application: the one named, or the one in front. Throws Failure.
MenuSource liveMenuSource(const command_line::MenuSourceOptions& options);

} // namespace tovrel
