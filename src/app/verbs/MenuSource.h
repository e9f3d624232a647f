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

/// Where the menus come from: an application and the door to it, be it live or recorded.
struct MenuSource {
    std::shared_ptr<RunningApplication> application;
    std::shared_ptr<Accessibility> accessibility;
    bool isRecording = false; ///< The menus belong to no running application and cannot be pressed.
    /// Tells what the last read missed; absent when it read everything. May be null for complete reads.
    std::function<std::optional<MenuReadShortfall>()> shortfall;
    /// Brings the application to the front and waits for it, within half a second. False when it was there
    /// already or could not be brought there. Null when there is no such application.
    std::function<bool()> bringToFront;
};

/// The source that the options name. `standardInput` is read for a recording file named "-". Throws Failure
/// when the source is not available.
MenuSource resolveMenuSource(const command_line::MenuSourceOptions& options, std::istream& standardInput);

/// The source of a running application: the one named, or the one in front. Throws Failure.
MenuSource liveMenuSource(const command_line::MenuSourceOptions& options);

} // namespace tovrel
