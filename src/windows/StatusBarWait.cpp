#include "windows/StatusBarWait.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QMetaObject>
#include <chrono>
#include <optional>
#include <utility>

#include <xcb/xcb.h>

#include "windows/X11.h"

namespace tovrel {
namespace {

using std::chrono_literals::operator""s;

constexpr auto x11TrayPatience = 5s;

// Names and paths of the StatusNotifierItem specification by KDE and freedesktop.org.
const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

} // namespace

StatusBarWait::StatusBarWait(std::function<void()> onReady) : onReady_(std::move(onReady)) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    watcher_.setConnection(bus);
    watcher_.setWatchMode(QDBusServiceWatcher::WatchForRegistration);
    watcher_.addWatchedService(watcherService);
    connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this,
            &StatusBarWait::askForStatusNotifierHost);
    bus.connect(watcherService, watcherPath, watcherService, QStringLiteral("StatusNotifierHostRegistered"),
                this, SLOT(askForStatusNotifierHost()));
    askForStatusNotifierHost();
    patience_.setSingleShot(true);
    connect(&patience_, &QTimer::timeout, this, [this] {
        QCoreApplication::instance()->installNativeEventFilter(this);
        useX11TrayIfThere();
    });
    patience_.start(x11TrayPatience);
}

void StatusBarWait::askForStatusNotifierHost() {
    QDBusMessage question = QDBusMessage::createMethodCall(watcherService, watcherPath,
                                                           QStringLiteral("org.freedesktop.DBus.Properties"),
                                                           QStringLiteral("Get"));
    question.setAutoStartService(false);
    question.setArguments({watcherService, QStringLiteral("IsStatusNotifierHostRegistered")});
    auto* call = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        const QDBusPendingReply<QDBusVariant> reply = *call;
        call->deleteLater();
        if (reply.isValid() && reply.value().variant().toBool()) {
            becomeReady();
        }
    });
}

bool StatusBarWait::nativeEventFilter(const QByteArray& eventType, void* message, qintptr* /*result*/) {
    if (eventType == "xcb_generic_event_t") {
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        // A tray that starts announces itself by such a message to the root window.
        if ((event->response_type & 0x7FU) == XCB_CLIENT_MESSAGE) {
            useX11TrayIfThere();
        }
    }
    return false;
}

void StatusBarWait::useX11TrayIfThere() {
    const std::optional<X11> x11 = X11::ofQt();
    if (x11 && x11->hasSystemTray()) {
        becomeReady();
    }
}

void StatusBarWait::becomeReady() {
    if (auto onReady = std::exchange(onReady_, nullptr)) {
        patience_.stop();
        QCoreApplication::instance()->removeNativeEventFilter(this);
        QMetaObject::invokeMethod(this, std::move(onReady), Qt::QueuedConnection);
    }
}

} // namespace tovrel
