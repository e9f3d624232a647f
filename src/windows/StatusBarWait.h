#pragma once

#include <QAbstractNativeEventFilter>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>
#include <functional>

#include "platform/WindowSystem.h"

namespace tovrel {

/// Waits until the desktop has a status bar. Qt decides once per process, when its tray icon is first
/// touched, whether icons go to a StatusNotifier host or into a tray of the display, so it must not be
/// touched before.
///
/// A StatusNotifier host counts at once. A tray counts only after some seconds, because at login it may
/// appear before the StatusNotifier host that the desktop has as well.
class StatusBarWait final : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

  public:
    /// Calls `onReady` once, at a later turn of the main thread. `windowSystem` outlives the object.
    StatusBarWait(const WindowSystem& windowSystem, std::function<void()> onReady);

  private Q_SLOTS:
    void askForStatusNotifierHost();

  private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
    void useTrayIfThere();
    void becomeReady();

    const WindowSystem* windowSystem_;
    std::function<void()> onReady_;
    QDBusServiceWatcher watcher_;
    QTimer patience_;
};

} // namespace tovrel
