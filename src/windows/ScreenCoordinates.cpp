#include "windows/ScreenCoordinates.h"

#include <QGuiApplication>
#include <algorithm>
#include <cmath>

namespace tovrel {
namespace {

/// The y of the primary screen's lower edge.
int baseline(const QScreen& primary) {
    return primary.geometry().y() + primary.geometry().height();
}

/// The screen in pixels. Qt scales the size of a screen but not the position of its corner.
QRect inPixels(const QScreen& screen) {
    return {screen.geometry().topLeft(),
            (QSizeF(screen.geometry().size()) * screen.devicePixelRatio()).toSize()};
}

} // namespace

Rect upwards(const QRect& rect, const QScreen& primary) {
    const int left = primary.geometry().x();
    return {
        .origin = {.x = static_cast<double>(rect.x() - left),
                   .y = static_cast<double>(baseline(primary) - rect.y() - rect.height())},
        .size = {.width = static_cast<double>(rect.width()), .height = static_cast<double>(rect.height())}};
}

QPoint downwards(Point origin, QSize size, const QScreen& primary) {
    return {primary.geometry().x() + static_cast<int>(std::lround(origin.x)),
            baseline(primary) - static_cast<int>(std::lround(origin.y)) - size.height()};
}

QScreen* screenNamed(const QString& name) {
    const auto screens = QGuiApplication::screens();
    const auto found = std::find_if(screens.begin(), screens.end(),
                                    [&](const QScreen* screen) { return screen->name() == name; });
    return found == screens.end() ? nullptr : *found;
}

QScreen* screenOf(const QRect& frame) {
    QScreen* best = nullptr;
    qint64 most = 0;
    const auto screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        const QRect common = inPixels(*screen).intersected(frame);
        const qint64 area = common.isEmpty() ? 0 : static_cast<qint64>(common.width()) * common.height();
        if (area > most) {
            best = screen;
            most = area;
        }
    }
    return best;
}

} // namespace tovrel
