#include "windows/MainScreen.h"

#include <QCursor>
#include <QGuiApplication>
#include <QRectF>

#include "windows/ScreenCoordinates.h"

namespace tovrel {

QScreen* mainScreen(const WindowSystem& windowSystem) {
    const std::optional<Rect> active = windowSystem.activeWindowFrame();
    QScreen* screen = nullptr;
    if (active) {
        const QRectF frame(active->origin.x, active->origin.y, active->size.width, active->size.height);
        screen = screenOf(frame.toRect());
    }
    if (screen == nullptr) {
        screen = QGuiApplication::screenAt(QCursor::pos());
    }
    return screen != nullptr ? screen : QGuiApplication::primaryScreen();
}

} // namespace tovrel
