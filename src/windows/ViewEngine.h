#pragma once

#include <QQmlEngine>

namespace tovrel {

/// What Qt must know before the application object is made: that it draws without a GPU (see ViewEngine for
/// the exception), and that it repaints at once instead of after 5 ms.
void configureQtEnvironment();

/// Loads the views. One per program, made after the application object and outliving every window.
///
/// With TOVREL_RENDERER=opengl in the environment windows are drawn by OpenGL, if it can be had.
class ViewEngine {
  public:
    ViewEngine();

    [[nodiscard]] QQmlEngine& qml() { return engine_; }

  private:
    QQmlEngine engine_;
};

} // namespace tovrel
