#pragma once

#include <QDBusConnection>
#include <QObject>

namespace tovrel {

/// Connects the slot to the loss of the connection; returns false when it is lost already.
inline bool tellLoss(QDBusConnection connection, QObject& receiver, const char* slot) {
    // D-Bus libraries send this signal to themselves, on a path and an interface reserved for that.
    return connection.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                              QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
                              &receiver, slot);
}

} // namespace tovrel
