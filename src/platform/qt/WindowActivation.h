#pragma once

#include <QTimer>
#include <QWindow>

#include "platform/qt/WindowSystem.h"

namespace tovrel {

/// Shows a window above the others and with the keyboard focus, also where the window manager is strict about
/// who may take it.
class WindowActivation {
  public:
    /// `window` outlives the object.
    WindowActivation(QWindow& window, WindowSystem windowSystem);

    void show();
    /// The focus goes back to where it was.
    void hide();

  private:
    QWindow* window_;
    WindowSystem windowSystem_;
    QTimer activation_;
    std::function<void()> restoreFocus_;
};

} // namespace tovrel
