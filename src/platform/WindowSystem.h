#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "model/Geometry.h"

namespace tovrel {

/// A window of this process, by the number that the toolkit and the display have for it; 0 for one that the
/// display does not know.
using OwnWindow = std::uintptr_t;

/// What this process's windows need of the display beyond what the toolkit does for them. Questions are
/// answered as of now, whatever events are still on their way.
class WindowSystem {
  public:
    virtual ~WindowSystem() = default;

    /// Whether transparent pixels of a window show what is behind it. May change at any time.
    [[nodiscard]] virtual bool isComposited() const = 0;

    /// Whether key presses are directed at the window, also while another program grabs the keyboard, when
    /// toolkits call the window inactive.
    [[nodiscard]] virtual bool hasInputFocus(OwnWindow window) const = 0;

    /// Gives the focus to a window that has just been shown and for which the toolkit has asked for it, where
    /// nobody obeys the toolkit.
    virtual void giveFocus(OwnWindow window) = 0;

    /// Asks for the focus again on behalf of the user's latest key press, where the toolkit's request was
    /// refused.
    virtual void activate(OwnWindow window) = 0;

    /// Called before a window takes the focus: what puts it back where it was. To be called while the window
    /// still has it, because a window manager that sees a focused window go chooses the next one itself, and
    /// some take the topmost. May outlive this object.
    [[nodiscard]] virtual std::function<void()> rememberFocus() const = 0;

    /// Whether someone gives the focus to another window when one that has it goes.
    [[nodiscard]] virtual bool isManaged() const = 0;

    /// Whether the first button of the pointer is down.
    [[nodiscard]] virtual bool isFirstButtonDown() const = 0;

    /// To be called when the button is up with which a window was being moved: a window manager that was
    /// asked to move it only a moment before would wait for that.
    virtual void endMove(OwnWindow window) = 0;

    /// The active window, whoever's, in pixels of the screen with y growing downwards; absent where none is
    /// or it cannot be known.
    [[nodiscard]] virtual std::optional<Rect> activeWindowFrame() const = 0;

    /// Whether the display has a status bar of its own, besides those that the session bus knows.
    [[nodiscard]] virtual bool hasStatusBar() const = 0;

    /// Whether a status bar may have appeared with this event. `type` names what `event` points to, as the
    /// toolkit calls it.
    [[nodiscard]] virtual bool mayAnnounceStatusBar(std::string_view type, const void* event) const = 0;
};

} // namespace tovrel
