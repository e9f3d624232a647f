#pragma once

#include <QDBusServer>
#include <QObject>

#include "app/seat/ResidentSeat.h"

namespace tovrel {

/// Offers an object to whoever connects to the seat's socket, as the session bus does to others. Only
/// processes of this user are let in.
class SeatServer : public QObject {
    Q_OBJECT

  public:
    /// The seat is this process's own; a socket that was left there is replaced. `object` outlives the
    /// server.
    SeatServer(const ResidentSeat& seat, QObject& object);

  private:
    QDBusServer server_;
};

/// One who has connected, until it is gone.
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
