#pragma once

#include <functional>
#include <vector>

#include "menus/ScannedMenuItem.h"

namespace tovrel {

/// Finds a menu command in a scanned tree and presses it.
struct MenuCommandPerformer {
    using Press = std::function<bool(const ScannedMenuItem&)>;

    /// The first item, depth first and parents before their children, whose menu path is `path`; null when
    /// there is none. The result points into `items`.
    [[nodiscard]] static const ScannedMenuItem* findItem(const std::vector<Text>& path,
                                                         const std::vector<ScannedMenuItem>& items);

    /// Calls `press` with the item and returns its answer.
    static bool perform(const ScannedMenuItem& item, const Press& press) { return press(item); }

    /// Asks the item's element for "AXPress". True when the request was accepted; false when it was refused,
    /// the element is gone, or the item has none.
    static bool pressMenuItem(const ScannedMenuItem& item);
};

} // namespace tovrel
