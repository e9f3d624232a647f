#pragma once

#include <cstdint>
#include <vector>

#include "platform/ApplicationWindow.h"
#include "platform/linux/menus/source/MenuPress.h"
#include "platform/linux/menus/source/MenuReadLimits.h"
#include "platform/linux/menus/source/MenuReading.h"

namespace tovrel {

/// One read of an application's menus, for which the sources are asked in turn.
struct MenuReadRequest {
    std::int32_t processIdentifier = 0;
    /// The process's windows, the front one first; empty if not known.
    std::vector<ApplicationWindow> windows;
    MenuReadLimits limits;
    /// When the read began. `limits.total` counts from here, so all sources share the time.
    SteadyTime started;
};

/// A place in which applications publish their menus. One object serves all applications, over a connection
/// of its own choice, and may keep data that makes the next read cheaper. Nothing is thrown: failures show in
/// the outcome of a reading or a press.
class ApplicationMenuSource {
  public:
    virtual ~ApplicationMenuSource() = default;

    /// Reads the menus again, within the limits, whatever the application does. Every entry that can be
    /// pressed has an `item`; the report says what is missing from the tree, or why it is empty.
    [[nodiscard]] virtual MenuReading read(const MenuReadRequest& request) = 0;

    /// Presses an item of a tree that this source has read. An empty item or another source's item is
    /// `refused`.
    [[nodiscard]] virtual PressResult press(const MenuItem& item) = 0;

    /// Whether an item always means the same entry, until a press finds it gone. If not, the item may mean
    /// another entry by now, so it is looked up again before each press.
    [[nodiscard]] virtual bool hasLastingItems() const { return false; }
};

} // namespace tovrel
