#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

#include "model/ScannedMenuItem.h"
#include "support/PointInTime.h"
#include "support/Text.h"

namespace tovrel {

/// A running application instance. The process identifier is part of the key, so a relaunched application
/// never sees the menus of its previous instance.
struct MenuCacheKey {
    std::optional<Text> bundleIdentifier;
    std::int64_t processIdentifier = 0;

    friend bool operator==(const MenuCacheKey&, const MenuCacheKey&) = default;
};

struct MenuCacheKeyHash {
    std::size_t operator()(const MenuCacheKey& key) const;
};

/// The last scanned menu tree of each application instance, kept in memory for half a minute.
class MenuCache {
  public:
    /// The lifetime in seconds, for whoever shows or documents it; a lookup goes by its own constant.
    double timeToLive = 30.0;

    /// The items stored under the key at most 30 seconds before `now` (a time before they were stored counts
    /// as fresh); absent otherwise, and the entry is then removed.
    [[nodiscard]] std::optional<std::vector<ScannedMenuItem>> cachedItems(const MenuCacheKey& key,
                                                                          PointInTime now);

    /// Sets the entry; an empty list is kept and served like any other.
    void store(const MenuCacheKey& key, std::vector<ScannedMenuItem> items, PointInTime now);

  private:
    struct Entry {
        std::vector<ScannedMenuItem> items;
        PointInTime storedAt;
    };

    std::unordered_map<MenuCacheKey, Entry, MenuCacheKeyHash> entries_;
};

} // namespace tovrel
