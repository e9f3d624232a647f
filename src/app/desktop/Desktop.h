#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Accessibility.h"
#include "platform/HotKeyCenter.h"
#include "platform/KeyDestination.h"
#include "platform/KeyEventPoster.h"
#include "platform/MainQueue.h"
#include "platform/ProcessRunner.h"
#include "platform/RunningApplication.h"
#include "platform/WindowList.h"
#include "platform/WindowSystem.h"
#include "platform/Workspace.h"
#include "platform/posix/EventSource.h"
#include "support/Text.h"

namespace tovrel {

/// How the last read of an application's menus fell short.
struct MenuReadShortfall {
    std::string reason;      ///< A clause without a full stop: "mousepad did not answer within 0.3 s".
    bool wasCutShort = true; ///< What was read is a part only; false when there was nothing to read.
};

/// Whether applications publish what they show, as far as that is the user's to switch.
struct AccessibilitySwitch {
    std::function<bool()> isEnabled;
    /// Whether it is switched so now.
    std::function<bool(bool)> setEnabled;
    /// The names of the applications that take no notice of the switch until they are started anew.
    std::function<std::vector<Text>()> applicationsToRestart;
};

/// The connection to the display that the user interface's toolkit itself has.
struct ToolkitConnection {
    enum class Kind { unknown, x11 };

    Kind kind = Kind::unknown;
    void* handle = nullptr; ///< Of x11, an xcb_connection_t; null of an unknown kind. It outlives its users.
};

/// What the main loop watches.
struct WatchedEvents {
    EventSource* source = nullptr;
    /// Dispatched before `source` each time: what came from there must not be taken for something later than
    /// what comes from here. May be null.
    EventSource* earlier = nullptr;
};

/// What the resident program has of a desktop besides what the command line has. Of the members, each may
/// need those before it. All are to go before the desktop.
struct ResidentSeams {
    std::unique_ptr<HotKeyCenter> hotKeys;
    std::unique_ptr<KeyEventPoster> keyPoster;
    std::unique_ptr<WindowSystem> windowSystem; ///< Null where the toolkit's own means are all there is.
    std::unique_ptr<ProcessRunner> processRunner;
    std::vector<WatchedEvents> events; ///< Nothing of the above is told unless they are watched.
};

/// The desktop that this program runs on, of whichever system and display. Nothing is connected to before it
/// is needed, but for the display.
class Desktop {
  public:
    virtual ~Desktop() = default;

    /// What kind it is, for people who look for a fault: "X11".
    [[nodiscard]] virtual std::string_view name() const = 0;

    /// Why neither windows of others can be seen nor own ones be shown, as the start of a sentence: "there is
    /// no X display". Absent where they can. Menus may be read nevertheless.
    [[nodiscard]] virtual std::optional<std::string> displayProblem() const = 0;

    [[nodiscard]] virtual WindowList& windows() = 0;
    [[nodiscard]] virtual Workspace& workspace() = 0;
    [[nodiscard]] virtual Accessibility& accessibility() = 0;

    /// Null when there is no such process.
    [[nodiscard]] virtual std::shared_ptr<RunningApplication>
    applicationWithProcessIdentifier(std::int32_t processIdentifier) = 0;
    /// The running applications with this bundle identifier, the one with the topmost window first.
    [[nodiscard]] virtual std::vector<std::shared_ptr<RunningApplication>>
    applicationsWithIdentifier(const Text& bundleIdentifier) = 0;

    /// What was missing in the last read of menus, which were this application's; absent when nothing was, or
    /// none were read yet.
    [[nodiscard]] virtual std::optional<MenuReadShortfall>
    menuShortfall(const RunningApplication& application) = 0;

    [[nodiscard]] virtual AccessibilitySwitch accessibilitySwitch() = 0;

    /// The virtual key code of a key by the number that the toolkit reports for it; absent for one without.
    [[nodiscard]] virtual std::optional<std::uint32_t> keyCode(std::uint32_t nativeScanCode) const = 0;

    /// `queue` outlives what is made. `keyDestination` is asked at each press of a hot key, before it is
    /// reported and after.
    [[nodiscard]] virtual ResidentSeams makeResidentSeams(MainQueue& queue,
                                                          std::function<KeyDestination()> keyDestination,
                                                          const ToolkitConnection& toolkit) = 0;
};

} // namespace tovrel
