#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/linux/AtspiAttributes.h"
#include "platform/linux/AtspiBus.h"
#include "platform/linux/AtspiMenuReader.h"
#include "support/Text.h"

namespace tovrel {

/// The menu bar of an application as it was at one time.
struct AtspiMenuSnapshot {
    AtspiMenuTree tree;
    std::vector<AtspiAttributes> attributes;
};

/// Access to the menus of one running application, shared by the elements read from it.
class AtspiApplicationMenus {
  public:
    /// The title of the front window of a process, as far as it is known.
    using WindowTitle = std::function<std::optional<Text>(std::int32_t processIdentifier)>;

    /// `connections` are the process's on the bus; a process with two toolkits in it has two. Their names are
    /// never given to another connection, so they stay right for as long as the process runs.
    AtspiApplicationMenus(std::shared_ptr<AtspiBus> bus, std::vector<AtspiApplication> connections,
                          WindowTitle windowTitle, const AtspiLimits& limits);

    /// Reads everything anew; null when there is nothing to be had. The report says why, and is complete in
    /// any case.
    std::shared_ptr<const AtspiMenuSnapshot> read(MenuReadReport& report);

    /// Presses a node of a snapshot. When the application no longer knows it, its menus are read once more
    /// and the node with the same titles is pressed instead, if exactly as many nodes have these titles as
    /// before.
    bool press(const AtspiMenuSnapshot& snapshot, std::size_t node);

  private:
    std::shared_ptr<AtspiBus> bus_;
    std::vector<AtspiApplication> connections_;
    WindowTitle windowTitle_;
    AtspiLimits limits_;
};

} // namespace tovrel
