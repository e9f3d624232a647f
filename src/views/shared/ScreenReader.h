#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>

namespace tovrel {

/// Tells a screen reader more than the items of views say themselves. Used by SpokenRow.
class ScreenReader : public QObject {
    Q_OBJECT
    QML_ELEMENT

  public:
    /// Has the screen reader speak the item as if it had the keyboard focus. Does nothing without a screen
    /// reader.
    Q_INVOKABLE void moveTo(QQuickItem* item);
};

} // namespace tovrel
