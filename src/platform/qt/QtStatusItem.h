#pragma once

#include <QMenu>
#include <QSystemTrayIcon>
#include <functional>
#include <memory>

#include "platform/StatusItem.h"
#include "platform/qt/StatusBarWait.h"

namespace tovrel {

/// The status item as a tray icon, once the desktop has a place for one.
class QtStatusItem final : public StatusItem {
  public:
    /// `onMenuTracking` is told when the menu opens (true) and closes.
    QtStatusItem(StatusItemDescription description, const std::function<void(bool)>& onMenuTracking);

    [[nodiscard]] QMenu& menu() { return menu_; }

  private:
    void show();

    StatusItemDescription description_;
    QMenu menu_;
    std::unique_ptr<QSystemTrayIcon> icon_;
    StatusBarWait wait_;
};

} // namespace tovrel
