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
    bool isRecording = false; ///< There is nothing behind the menus that could be pressed.
    /// Asked after a read: absent when everything was read. May be null, as if it always were.
    std::function<std::optional<MenuReadShortfall>()> shortfall;
    /// Brings the application to the front and waits for it, within half a second. False when it was there
    /// already or could not be brought there. Null where there is nothing to bring.
    std::function<bool()> bringToFront;
};

/// The source that the options name. Throws Failure when it cannot be had. `standardInput` is what a
/// recording file named "-" is read from.
MenuSource resolveMenuSource(const command_line::MenuSourceOptions& options, std::istream& standardInput);

/// The source of a running application: the one named, or the one in front. Throws Failure.
MenuSource liveMenuSource(const command_line::MenuSourceOptions& options);

} // namespace tovrel
