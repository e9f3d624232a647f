#pragma once

#include <QPoint>
#include <QRect>
#include <QScreen>
#include <QString>

#include "model/Geometry.h"

namespace tovrel {

/// Converts to the core's coordinates: logical pixels, y growing upwards, with the origin in the lower left
/// corner of the primary screen, whatever other screens there are. Qt's y grows downwards from the upper left
/// corner of the desktop.
Rect upwards(const QRect& rect, const QScreen& primary);

/// The upper left corner, in Qt's coordinates, of a window whose lower left corner is at `origin`.
QPoint downwards(Point origin, QSize size, const QScreen& primary);

/// The screen to which Qt gives this name; null when there is none.
QScreen* screenNamed(const QString& name);

/// The screen that shows the largest part of `frame`, which is in pixels of the screen; null when none does.
QScreen* screenOf(const QRect& frame);

} // namespace tovrel
