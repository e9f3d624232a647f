#include "app/resident/BusPresence.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <algorithm>

#include "app/resident/LostConnection.h"
#include "app/seat/DBusNames.h"
#include "platform/linux/dbus/DBus.h"

namespace tovrel {
namespace {

using std::chrono_literals::operator""ms;
using std::chrono_literals::operator""s;

constexpr auto patienceAtStart = 5s;
/// The main thread is blocked meanwhile.
constexpr auto patienceLater = 100ms;
constexpr auto firstRetry = 250ms;
/// A session without its bus can bear a wake-up now and then.
constexpr auto longestRetry = 8s;

/// Qt itself would wait without limit for a bus that does not answer.
bool isBusAnswering(std::chrono::milliseconds patience) {
    auto bus = DBusConnection::openSessionBus();
    return bus && bus->call(bus->busCall("GetId"), std::chrono::steady_clock::now() + patience);
}

} // namespace

QString BusPresence::connectionName() {
    return QStringLiteral("tovrel");
}

BusPresence::~BusPresence() {
    disappear();
}

BusPresence::Outcome BusPresence::appear() {
    QObject::connect(&retry_, &QTimer::timeout, this, [this] { tryAgain(); });
    return appear(patienceAtStart);
}

BusPresence::Outcome BusPresence::appear(std::chrono::milliseconds patience) {
    if (!isBusAnswering(patience)) {
        return Outcome::noBus;
    }
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName());
    if (bus.isConnected() && tellLoss(bus, *this, SLOT(connectionLost())) &&
        bus.registerObject(dbus_names::objectPath, object_,
                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties)) {
        const auto reply =
            bus.interface()->registerService(dbus_names::service, QDBusConnectionInterface::QueueService);
        if (reply.isValid()) {
            return reply.value() == QDBusConnectionInterface::ServiceRegistered ? Outcome::hasName
                                                                                : Outcome::waitsForName;
        }
    }
    disappear();
    return Outcome::noBus;
}

void BusPresence::connectionLost() {
    disappear();
    retry_.start(firstRetry);
}

void BusPresence::tryAgain() {
    if (appear(patienceLater) == Outcome::noBus) {
        retry_.setInterval(
            std::min<std::chrono::milliseconds>(2 * retry_.intervalAsDuration(), longestRetry));
    } else {
        retry_.stop();
    }
}

void BusPresence::disappear() {
    QDBusConnection(connectionName()).unregisterObject(dbus_names::objectPath);
    QDBusConnection::disconnectFromBus(connectionName());
}

} // namespace tovrel
