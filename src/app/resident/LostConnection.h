#pragma once

#include <QDBusConnection>
#include <QObject>

namespace tovrel {

/// Has the slot called once when the connection is lost. False when it is lost already.
inline bool tellLoss(QDBusConnection connection, QObject& receiver, const char* slot) {
    // D-Bus libraries send it to themselves, on a path and an interface that are reserved for that.
    return connection.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                              QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
                              &receiver, slot);
}

} // namespace tovrel
