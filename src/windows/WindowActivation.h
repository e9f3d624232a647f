#pragma once

#include <QTimer>
#include <QWindow>

#include "windows/WindowSystem.h"

namespace tovrel {

/// Whether a window goes away as soon as the user turns to another one.
enum class WindowStay { brief, lasting };

/// Shows a window above the others and with the keyboard focus, also where the window manager is strict about
/// who may take it.
class WindowActivation {
  public:
    /// `window` outlives the object.
    WindowActivation(QWindow& window, WindowSystem windowSystem, WindowStay stay);

    /// Above the others, as yet without the focus.
    void show();
    /// Gives the window, which is shown, the focus; where that is refused, once more after a moment.
    void takeFocus();
    /// If the window has the focus, it goes back to where it was; from a window that has stayed for long, to
    /// where the window manager thinks best.
    void hide();

  private:
    QWindow* window_;
    WindowSystem windowSystem_;
    WindowStay stay_;
    QTimer activation_;
    std::function<void()> restoreFocus_;
};

} // namespace tovrel
