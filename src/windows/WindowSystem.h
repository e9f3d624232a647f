#pragma once

#include <QRect>
#include <QWindow>
#include <cstdint>
#include <functional>
#include <optional>

namespace tovrel {

/// What windows need of the window system beyond what Qt does. The defaults are for those that offer no more.
struct WindowSystem {
    /// Whether transparent pixels of a window show what is behind it now. May change at any time.
    std::function<bool()> isComposited = [] { return true; };

    /// Whether key presses are directed at the window, also while another program grabs the keyboard, when Qt
    /// calls the window inactive.
    std::function<bool(const QWindow&)> hasInputFocus = [](const QWindow& window) {
        return window.isActive();
    };

    /// Gives a window that has just been shown the focus.
    std::function<void(QWindow&)> takeFocus = [](QWindow& window) { window.requestActivate(); };

    /// The same on behalf of the user's latest key press, for where the first request was refused.
    std::function<void(QWindow&)> activate = [](QWindow& window) { window.requestActivate(); };

    /// Called before a window takes the focus: what puts it back where it was. Called while the window still
    /// has it, because a window manager that sees a focused window go chooses the next one itself, and some
    /// take the topmost.
    std::function<std::function<void()>()> rememberFocus = [] { return [] {}; };

    /// Whether someone gives the focus to another window when one that has it goes.
    std::function<bool()> isManaged = [] { return true; };

    /// Whether the first button of the pointer is down now, whatever events are still on their way.
    std::function<bool()> isFirstButtonDown = [] { return true; };

    /// Called when the button is up with which a window was being moved: a window manager that was asked to
    /// move it only a moment before would wait for that.
    std::function<void(QWindow&)> endMove = [](QWindow&) {};

    /// The active window, whoever's, in pixels of the screen with y growing downwards.
    std::function<std::optional<QRect>()> activeWindowFrame = [] { return std::optional<QRect>(); };
};

/// The window system of the running application object. `userTime` is the X server's time of the user's
/// latest key press as far as this program knows, such as that of the hot key; 0 when it knows of none.
WindowSystem makeWindowSystem(std::function<std::uint32_t()> userTime);

} // namespace tovrel
