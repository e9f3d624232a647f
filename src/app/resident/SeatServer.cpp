#include "app/resident/SeatServer.h"

#include <memory>

#include "app/resident/LostConnection.h"
#include "app/seat/DBusNames.h"

namespace tovrel {

SeatServer::SeatServer(const ResidentSeat& seat, QObject& object)
    : server_(QString::fromStdString(seat.address())) {
    QObject::connect(
        &server_, &QDBusServer::newConnection, this, [this, &object](const QDBusConnection& connection) {
            // The server, its parent, owns it.
            static_cast<void>(std::make_unique<SeatVisitor>(connection, object, *this).release());
        });
}

SeatVisitor::SeatVisitor(const QDBusConnection& connection, QObject& object, QObject& parent)
    : QObject(&parent), name_(connection.name()) {
    QDBusConnection visitor = connection;
    visitor.registerObject(dbus_names::objectPath, &object,
                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties);
    if (!tellLoss(visitor, *this, SLOT(gone()))) {
        gone();
    }
}

void SeatVisitor::gone() {
    QDBusConnection::disconnectFromPeer(name_);
    deleteLater();
}

} // namespace tovrel
