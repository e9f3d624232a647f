#include "windows/QtUserNotifications.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QStringList>
#include <QVariantMap>
#include <memory>

#include "qt/QtText.h"

namespace tovrel {
namespace {

/// Milliseconds after which a server counts as silent.
constexpr int patience = 5000;

QDBusMessage callOf(const QString& method) {
    const QString name = QStringLiteral("org.freedesktop.Notifications");
    QDBusMessage call =
        QDBusMessage::createMethodCall(name, QStringLiteral("/org/freedesktop/Notifications"), name, method);
    call.setAutoStartService(false);
    return call;
}

QString withoutMarkup(QString text) {
    return text.replace(u'&', QLatin1String("&amp;"))
        .replace(u'<', QLatin1String("&lt;"))
        .replace(u'>', QLatin1String("&gt;"));
}

void notify(const QDBusConnection& bus, const QString& title, const QString& body) {
    const uint replacesNone = 0;
    const int asLongAsTheServerLikes = -1;
    const QString identifier = QGuiApplication::desktopFileName(); // also the name of the icon
    QDBusMessage call = callOf(QStringLiteral("Notify"));
    call.setArguments({QGuiApplication::applicationDisplayName(), replacesNone, identifier, title, body,
                       QStringList(), QVariantMap{{QStringLiteral("desktop-entry"), identifier}},
                       asLongAsTheServerLikes});
    bus.send(call);
}

} // namespace

void QtUserNotifications::show(const Text& title, const Text& body) {
    // Only the body can have markup, and each server says whether it reads markup.
    const QDBusConnection bus(connectionName_);
    const QDBusPendingCall question = bus.asyncCall(callOf(QStringLiteral("GetCapabilities")), patience);
    // The parent owns it.
    auto* call = std::make_unique<QDBusPendingCallWatcher>(question, &pendingCalls_).release();
    QObject::connect(call, &QDBusPendingCallWatcher::finished, &pendingCalls_,
                     [call, bus, title = qtString(title), body = qtString(body)] {
                         const QDBusPendingReply<QStringList> reply = *call;
                         call->deleteLater();
                         if (reply.isValid()) {
                             const bool readsMarkup = reply.value().contains(QLatin1String("body-markup"));
                             notify(bus, title, readsMarkup ? withoutMarkup(body) : body);
                         }
                     });
}

} // namespace tovrel
