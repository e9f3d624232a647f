#pragma once

#include <QObject>

#include "platform/UserNotifications.h"

namespace tovrel {

/// Notifications by the server that runs on the session bus (Desktop Notifications Specification of
/// freedesktop.org). None is started for them. What the server has not answered when this ends is dropped.
class QtUserNotifications final : public UserNotifications {
  public:
    void show(const Text& title, const Text& body) override;

  private:
    QObject pendingCalls_;
};

} // namespace tovrel
