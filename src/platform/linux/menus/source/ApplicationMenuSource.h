#pragma once

#include <cstdint>
#include <vector>

#include "platform/ApplicationWindow.h"
#include "platform/linux/menus/source/MenuPress.h"
#include "platform/linux/menus/source/MenuReadLimits.h"
#include "platform/linux/menus/source/MenuReading.h"

namespace tovrel {

/// One read of an application's menus, as each source of it is asked in turn.
struct MenuReadRequest {
    std::int32_t processIdentifier = 0;
    std::vector<ApplicationWindow> windows; ///< Of the process, the front one first; empty if not known.
    MenuReadLimits limits;
    /// When the read began, which `limits.total` counts from: the time that one source takes is not there for
    /// the next.
    SteadyTime started;
};

/// A place in which applications publish their menus. One object serves all applications, over a connection
/// of its own choice, and may keep what makes the next read cheaper. Nothing is thrown: what fails shows in
/// the outcome of a reading, or of a press.
class ApplicationMenuSource {
  public:
    virtual ~ApplicationMenuSource() = default;

    /// Reads the menus anew, within the limits, whatever the application does. Every entry that can be
    /// pressed has an `item`; the report says what is missing from the tree, or why it is empty.
    [[nodiscard]] virtual MenuReading read(const MenuReadRequest& request) = 0;

    /// Presses an item of a tree that this source has read. An empty one, and what is no item of this source,
    /// is `refused`.
    [[nodiscard]] virtual PressResult press(const MenuItem& item) = 0;

    /// Whether an item that was read stays the same one until a press of it finds it gone. Otherwise the same
    /// item may mean something else by now, and is looked up anew before each press.
    [[nodiscard]] virtual bool hasLastingItems() const { return false; }
};

} // namespace tovrel
