#pragma once

#include <QPoint>
#include <QRect>
#include <QScreen>
#include <QString>

#include "model/Geometry.h"

namespace tovrel {

/// The core's coordinates (logical pixels, y growing upwards) have their origin in the lower left corner of
/// the primary screen, whatever other screens there are; Qt's grow downwards from the upper left corner of
/// the desktop.
Rect upwards(const QRect& rect, const QScreen& primary);

/// The upper left corner, for Qt, of a window whose lower left corner is at `origin`.
QPoint downwards(Point origin, QSize size, const QScreen& primary);

/// The screen that Qt has under the name; null when none has it.
QScreen* screenNamed(const QString& name);

/// The screen that holds most of what is at `frame`, in pixels of the screen; null when none does.
QScreen* screenOf(const QRect& frame);

} // namespace tovrel
