#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>

namespace tovrel {

/// What views tell a screen reader beyond what their items say of themselves. For SpokenRow.
class ScreenReader : public QObject {
    Q_OBJECT
    QML_ELEMENT

  public:
    /// Lets it speak of the item as if that had the keyboard focus. Without a screen reader nothing happens.
    Q_INVOKABLE void moveTo(QQuickItem* item);
};

} // namespace tovrel
