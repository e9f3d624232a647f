#pragma once

#include <memory>

#include "platform/linux/dbus/SessionBus.h"
#include "platform/linux/menus/source/ApplicationMenuSource.h"

namespace tovrel {

/// The menu bar that an application has registered for its front window as com.canonical.dbusmenu.
class DBusMenuSource : public ApplicationMenuSource {
  public:
    /// `bus` is never null.
    explicit DBusMenuSource(std::shared_ptr<SessionBus> bus) : bus_(std::move(bus)) {}

    [[nodiscard]] MenuReading read(const MenuReadRequest& request) override;
    [[nodiscard]] PressResult press(const MenuItem& item) override;

  private:
    std::shared_ptr<SessionBus> bus_;
};

} // namespace tovrel
