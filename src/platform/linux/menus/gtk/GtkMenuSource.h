#pragma once

#include <memory>
#include <vector>

#include "platform/linux/dbus/SessionBus.h"
#include "platform/linux/menus/source/ApplicationMenuSource.h"

namespace tovrel {

/// The foremost window that publishes a menu bar as org.gtk.Menus; null when there is none. A dialog in front
/// of it publishes none.
const ApplicationWindow* publisherOf(const std::vector<ApplicationWindow>& windows);

/// Menus that windows publish as org.gtk.Menus, with the actions of org.gtk.Actions.
class GtkMenuSource : public ApplicationMenuSource {
  public:
    /// `bus` is never null.
    explicit GtkMenuSource(std::shared_ptr<SessionBus> bus) : bus_(std::move(bus)) {}

    [[nodiscard]] MenuReading read(const MenuReadRequest& request) override;
    [[nodiscard]] PressResult press(const MenuItem& item) override;

  private:
    std::shared_ptr<SessionBus> bus_;
};

} // namespace tovrel
