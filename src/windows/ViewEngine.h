#pragma once

#include <QQmlEngine>

namespace tovrel {

/// Configures Qt before the application object is made: it draws without a GPU (see ViewEngine for the
/// exception), and repaints at once instead of after 5 ms.
void configureQtEnvironment();

/// Loads the views. A program has one, made after the application object; it outlives every window.
///
/// With TOVREL_RENDERER=opengl in the environment, OpenGL draws the windows if it is available.
class ViewEngine {
  public:
    ViewEngine();

    [[nodiscard]] QQmlEngine& qml() { return engine_; }

  private:
    QQmlEngine engine_;
};

} // namespace tovrel
