#pragma once

#include <memory>

#include "platform/linux/menus/accessibility/AtspiBus.h"
#include "platform/linux/menus/source/ApplicationMenuSource.h"

namespace tovrel {

/// Menus on the accessibility bus. An object there always stands for the same item: a press of one that is
/// gone reports that.
class AtspiMenuSource : public ApplicationMenuSource {
  public:
    /// `bus` is never null.
    explicit AtspiMenuSource(std::shared_ptr<AtspiBus> bus) : bus_(std::move(bus)) {}

    [[nodiscard]] MenuReading read(const MenuReadRequest& request) override;
    [[nodiscard]] PressResult press(const MenuItem& item) override;
    [[nodiscard]] bool hasLastingItems() const override { return true; }

    struct Additions {
        MenuReadReport report;
        bool hasAddedAccelerators = false; ///< All shortcuts that the menus lacked have been added.
    };

    /// Adds the missing parts to the menus, not empty, that the front window publishes elsewhere; see
    /// `readAtspiMenus`.
    Additions addTo(MenuTree& published, const MenuReadRequest& request);

  private:
    MenuReading readOrAdd(const MenuReadRequest& request, MenuTree& published, bool& hasAddedAccelerators);

    std::shared_ptr<AtspiBus> bus_;
};

} // namespace tovrel
