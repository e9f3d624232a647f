#pragma once

#include <QAbstractNativeEventFilter>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>
#include <functional>

#include "platform/WindowSystem.h"

namespace tovrel {

/// Waits until the desktop has a status bar. When its tray icon is first used, Qt decides for the whole
/// process whether icons go to a StatusNotifier host or into a tray of the display. So the icon must not be
/// used before a status bar is there.
///
/// A StatusNotifier host counts at once. A tray counts only after some seconds, because at login a desktop
/// with both may start the tray before the StatusNotifier host.
class StatusBarWait final : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

  public:
    /// Calls `onReady` once, in a later turn of the main loop. `windowSystem` outlives the object.
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
