#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/linux/dbus/DBus.h"
#include "platform/linux/menus/gtk/GtkMenuModel.h"

namespace tovrel {

/// The shortcuts that windows do not publish with their menus, as the accessibility bus told them a while
/// ago. They hardly ever change, and to ask for them takes three times as long as to read all that is
/// published. What a shortcut belongs to is an action with its target, whatever the title of its item is at
/// the moment.
class KnownAccelerators {
  public:
    /// How long they count: a shortcut that is changed in an application is shown as it was for so long at
    /// most.
    static constexpr std::chrono::minutes lifetime{10};

    /// Adds them to published menus if those of all items are known, that they have none included. Otherwise
    /// nothing is added, and false: all are to be asked for then, so that none outlives its time because of a
    /// neighbour.
    bool addTo(MenuTree& tree, SteadyTime now) const;

    /// Takes over the shortcuts of published menus that have been completed: an item without one has none.
    void learn(const MenuTree& tree, SteadyTime now);

  private:
    struct Known {
        std::optional<DBusValue> target;
        std::optional<MenuShortcut> shortcut;
        SteadyTime learnt;
    };

    [[nodiscard]] const Known* find(const GtkAction& action, SteadyTime now) const;

    /// By the name on the bus, the group and the name of the action.
    std::unordered_map<std::string, std::vector<Known>> known_;
};

} // namespace tovrel
