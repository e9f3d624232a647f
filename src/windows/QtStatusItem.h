#pragma once

#include <QEvent>
#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>
#include <functional>
#include <memory>

#include "platform/StatusItem.h"
#include "windows/StatusBarWait.h"

namespace tovrel {

/// The status item as a tray icon, which appears once the desktop has a place for it. The key equivalents of
/// its menu work while the menu is open.
class QtStatusItem final : public QObject, public StatusItem {
  public:
    /// `windowSystem` outlives it. `onMenuTracking` is called when the menu opens (true) and closes (false).
    QtStatusItem(StatusItemDescription description, const WindowSystem& windowSystem,
                 const std::function<void(bool)>& onMenuTracking);

    void setToolTip(const Text& toolTip) override;

    [[nodiscard]] QMenu& menu() { return menu_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void show();

    StatusItemDescription description_;
    QMenu menu_;
    std::unique_ptr<QSystemTrayIcon> icon_;
    StatusBarWait wait_;
};

} // namespace tovrel
