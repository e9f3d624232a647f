#include "windows/QtWindowSystem.h"

#include <QGuiApplication>
#include <algorithm>

namespace tovrel {
namespace {

/// Null when Qt has no such window.
QWindow* qtWindow(OwnWindow window) {
    const auto windows = QGuiApplication::allWindows();
    const auto found = std::find_if(windows.begin(), windows.end(), [&](const QWindow* each) {
        return window != 0 && ownWindow(*each) == window;
    });
    return found == windows.end() ? nullptr : *found;
}

} // namespace

OwnWindow ownWindow(const QWindow& window) {
    // winId() would create a handle for a window without one.
    return window.handle() != nullptr ? window.winId() : 0;
}

bool QtWindowSystem::hasInputFocus(OwnWindow window) const {
    const QWindow* found = qtWindow(window);
    return found != nullptr && found->isActive();
}

void QtWindowSystem::activate(OwnWindow window) {
    if (QWindow* found = qtWindow(window)) {
        found->requestActivate();
    }
}

} // namespace tovrel
