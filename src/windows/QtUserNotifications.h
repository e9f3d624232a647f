#pragma once

#include <QObject>
#include <QString>
#include <utility>

#include "platform/UserNotifications.h"

namespace tovrel {

/// Shows notifications through the server on the session bus (Desktop Notifications Specification of
/// freedesktop.org), but never starts one. Notifications that the server has not answered when this object
/// ends are dropped.
class QtUserNotifications final : public UserNotifications {
  public:
    /// `connectionName` names a connection to the session bus (see QDBusConnection), which may be lost and
    /// made again meanwhile.
    explicit QtUserNotifications(QString connectionName) : connectionName_(std::move(connectionName)) {}

    void show(const Text& title, const Text& body) override;

  private:
    QString connectionName_;
    QObject pendingCalls_;
};

} // namespace tovrel
