#pragma once

#include <QDBusServer>
#include <QObject>

#include "app/seat/ResidentSeat.h"

namespace tovrel {

/// Offers an object to processes of this user that connect to the seat's socket, as the session bus offers it
/// to others.
class SeatServer : public QObject {
    Q_OBJECT

  public:
    /// The seat must be this process's own; a leftover socket is replaced. `object` must outlive the server.
    SeatServer(const ResidentSeat& seat, QObject& object);

  private:
    QDBusServer server_;
};

/// A connection to the socket, until the other side ends it.
class SeatVisitor : public QObject {
    Q_OBJECT

  public:
    SeatVisitor(const QDBusConnection& connection, QObject& object, QObject& parent);

  private Q_SLOTS:
    void gone();

  private:
    QString name_;
};

} // namespace tovrel
