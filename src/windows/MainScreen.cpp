#include "windows/MainScreen.h"

#include <QCursor>
#include <QGuiApplication>

#include "windows/ScreenCoordinates.h"

namespace tovrel {

QScreen* mainScreen(const WindowSystem& windowSystem) {
    const std::optional<QRect> activeWindow = windowSystem.activeWindowFrame();
    QScreen* screen = activeWindow ? screenOf(*activeWindow) : nullptr;
    if (screen == nullptr) {
        screen = QGuiApplication::screenAt(QCursor::pos());
    }
    return screen != nullptr ? screen : QGuiApplication::primaryScreen();
}

} // namespace tovrel
