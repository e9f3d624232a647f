#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "model/Geometry.h"

namespace tovrel {

/// A window of this process, as the number that the toolkit and the display use for it; 0 for a window that
/// the display does not know.
using OwnWindow = std::uintptr_t;

/// What this process's windows need from the display beyond what the toolkit does for them. Each answer gives
/// the present state, even if events about it have not arrived yet.
class WindowSystem {
  public:
    virtual ~WindowSystem() = default;

    /// Whether transparent pixels of a window show what is behind it. May change at any time.
    [[nodiscard]] virtual bool isComposited() const = 0;

    /// Whether key presses are directed at the window. True also while another program grabs the keyboard,
    /// although toolkits then call the window inactive.
    [[nodiscard]] virtual bool hasInputFocus(OwnWindow window) const = 0;

    /// Gives the focus to a window that has just been shown, where nobody carries out the toolkit's own
    /// request for the focus.
    virtual void giveFocus(OwnWindow window) = 0;

    /// Asks for the focus again on behalf of the user's latest key press, where the toolkit's request was
    /// refused.
    virtual void activate(OwnWindow window) = 0;

    /// Returns a function that puts the focus back where it is now; ask for it before a window takes the
    /// focus. Call the function while the window still has the focus, because a window manager that sees a
    /// focused window go chooses the next one itself, and some take the topmost. The function may outlive
    /// this object.
    [[nodiscard]] virtual std::function<void()> rememberFocus() const = 0;

    /// Whether a window manager gives the focus to another window when the focused one goes.
    [[nodiscard]] virtual bool isManaged() const = 0;

    /// Whether the first button of the pointer is down.
    [[nodiscard]] virtual bool isFirstButtonDown() const = 0;

    /// To be called when the button that was moving a window has come up. A window manager that was asked
    /// only just before to move the window would otherwise still wait for the button.
    virtual void endMove(OwnWindow window) = 0;

    /// The frame of the active window of any program, in pixels of the screen with y growing downwards;
    /// absent when no window is active or the frame is unknown.
    [[nodiscard]] virtual std::optional<Rect> activeWindowFrame() const = 0;

    /// Whether the display has a status bar of its own, besides those that the session bus knows.
    [[nodiscard]] virtual bool hasStatusBar() const = 0;

    /// Whether a status bar may have appeared with this event. `type` names what `event` points to, as the
    /// toolkit calls it.
    [[nodiscard]] virtual bool mayAnnounceStatusBar(std::string_view type, const void* event) const = 0;
};

} // namespace tovrel
