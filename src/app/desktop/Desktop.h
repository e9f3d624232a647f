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

/// Says what was missing in the last read of an application's menus.
struct MenuReadShortfall {
    std::string reason;      ///< A clause without a full stop: "mousepad did not answer within 0.3 s".
    bool wasCutShort = true; ///< A part of the menus was read; false when nothing was.
};

/// The user's switch for whether applications publish their user interfaces.
struct AccessibilitySwitch {
    std::function<bool()> isEnabled;
    /// Switches it; returns whether it is switched that way now.
    std::function<bool(bool)> setEnabled;
    /// The names of the applications that do not notice the switch until they are restarted.
    std::function<std::vector<Text>()> applicationsToRestart;
};

/// The toolkit's own connection to the display.
struct ToolkitConnection {
    enum class Kind { unknown, x11 };

    Kind kind = Kind::unknown;
    void* handle = nullptr; ///< An xcb_connection_t for x11; null for an unknown kind. It outlives its users.
};

/// An event source for the main loop to watch.
struct WatchedEvents {
    EventSource* source = nullptr;
    /// Dispatched before `source` each time, because its waiting events must count as older than those of
    /// `source`. May be null.
    EventSource* earlier = nullptr;
};

/// The parts of a desktop that only the resident program needs. Each member may need those before it. All
/// must be destroyed before the desktop.
struct ResidentSeams {
    std::unique_ptr<HotKeyCenter> hotKeys;
    std::unique_ptr<KeyEventPoster> keyPoster;
    std::unique_ptr<WindowSystem> windowSystem; ///< Null where only the toolkit's own means exist.
    std::unique_ptr<ProcessRunner> processRunner;
    std::vector<WatchedEvents> events; ///< The members above report nothing unless these are watched.
};

/// The desktop that this program runs on, whatever the system and the display. Only the display is connected
/// at once; other connections are made when they are needed.
class Desktop {
  public:
    virtual ~Desktop() = default;

    /// The kind of desktop, for people who look for a fault: "X11".
    [[nodiscard]] virtual std::string_view name() const = 0;

    /// Why other programs' windows cannot be seen and own ones cannot be shown, as the start of a sentence:
    /// "there is no X display". Absent where both work. Menus may be readable nevertheless.
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

    /// What was missing in the last read of menus, which must have been this application's; absent when
    /// nothing was missing or nothing was read yet.
    [[nodiscard]] virtual std::optional<MenuReadShortfall>
    menuShortfall(const RunningApplication& application) = 0;

    [[nodiscard]] virtual AccessibilitySwitch accessibilitySwitch() = 0;

    /// The virtual key code of the key for which the toolkit reports this number; absent for a key without
    /// one.
    [[nodiscard]] virtual std::optional<std::uint32_t> keyCode(std::uint32_t nativeScanCode) const = 0;

    /// `queue` must outlive the result. `keyDestination` is called at each press of a hot key, before and
    /// after the press is reported.
    [[nodiscard]] virtual ResidentSeams makeResidentSeams(MainQueue& queue,
                                                          std::function<KeyDestination()> keyDestination,
                                                          const ToolkitConnection& toolkit) = 0;
};

} // namespace tovrel
