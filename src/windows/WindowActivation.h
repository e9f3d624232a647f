#pragma once

#include <QTimer>
#include <QWindow>
#include <functional>

#include "platform/WindowSystem.h"

namespace tovrel {

/// Whether a window closes as soon as the user turns to another one.
enum class WindowStay { brief, lasting };

/// Shows a window above the others and with the keyboard focus, even where the window manager restricts who
/// may take it.
class WindowActivation {
  public:
    /// `window` and `windowSystem` outlive the object.
    WindowActivation(QWindow& window, WindowSystem& windowSystem, WindowStay stay);

    /// Shows the window above the others, without taking the focus.
    void show();
    /// Gives the shown window the focus, and tries once more after a moment if that was refused.
    void takeFocus();
    /// Hides the window. If it has the focus, the focus goes back to where it was; for a lasting window, the
    /// window manager, if any, chooses.
    void hide();

  private:
    QWindow* window_;
    WindowSystem* windowSystem_;
    WindowStay stay_;
    QTimer activation_;
    std::function<void()> restoreFocus_;
};

} // namespace tovrel
