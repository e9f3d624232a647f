#pragma once

#include <QObject>
#include <QString>
#include <utility>

#include "platform/UserNotifications.h"

namespace tovrel {

/// Notifications by the server that runs on the session bus (Desktop Notifications Specification of
/// freedesktop.org). None is started for them. What the server has not answered when this ends is dropped.
class QtUserNotifications final : public UserNotifications {
  public:
    /// `connectionName` is that of a connection to the session bus (QDBusConnection), which may be lost and
    /// made anew meanwhile.
    explicit QtUserNotifications(QString connectionName) : connectionName_(std::move(connectionName)) {}

    void show(const Text& title, const Text& body) override;

  private:
    QString connectionName_;
    QObject pendingCalls_;
};

} // namespace tovrel
