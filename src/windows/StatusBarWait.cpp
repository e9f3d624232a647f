#include "windows/StatusBarWait.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QMetaObject>
#include <chrono>
#include <string_view>
#include <utility>

namespace tovrel {
namespace {

using std::chrono_literals::operator""s;

constexpr auto trayPatience = 5s;

// Names and paths of the StatusNotifierItem specification by KDE and freedesktop.org.
const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

} // namespace

StatusBarWait::StatusBarWait(const WindowSystem& windowSystem, std::function<void()> onReady)
    : windowSystem_(&windowSystem), onReady_(std::move(onReady)) {
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
        useTrayIfThere();
    });
    patience_.start(trayPatience);
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
    const std::string_view type(eventType.constData(), static_cast<std::size_t>(eventType.size()));
    if (windowSystem_->mayAnnounceStatusBar(type, message)) {
        useTrayIfThere();
    }
    return false;
}

void StatusBarWait::useTrayIfThere() {
    if (windowSystem_->hasStatusBar()) {
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
