#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/linux/dbus/DBus.h"
#include "platform/linux/menus/gtk/GtkMenuModel.h"

namespace tovrel {

/// The shortcuts that windows do not publish with their menus, as last read from the accessibility bus. They
/// hardly ever change, and asking for them takes three times as long as reading all published menus. A
/// shortcut belongs to an action with its target, whatever the current title of its item.
class KnownAccelerators {
  public:
    /// How long a shortcut stays valid. A changed shortcut is shown in its old form for at most this long.
    static constexpr std::chrono::minutes lifetime{10};

    /// Adds shortcuts to published menus if it is known for every item whether it has one, and which.
    /// Otherwise adds nothing and returns false; the caller must then ask for all of them, so that all expire
    /// together.
    bool addTo(MenuTree& tree, SteadyTime now) const;

    /// Stores the shortcuts of published menus to which all have been added; an item without one has none.
    void learn(const MenuTree& tree, SteadyTime now);

  private:
    struct Known {
        std::optional<DBusValue> target;
        std::optional<MenuShortcut> shortcut;
        SteadyTime learnt;
    };

    [[nodiscard]] const Known* find(const GtkAction& action, SteadyTime now) const;

    /// The shortcuts by the name on the bus, the group and the name of the action.
    std::unordered_map<std::string, std::vector<Known>> known_;
};

} // namespace tovrel
