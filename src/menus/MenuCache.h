#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "menus/ScannedMenuItem.h"
#include "platform/RunningApplication.h"
#include "support/Text.h"
#include "support/Uptime.h"

namespace tovrel {

/// A running application instance. The process identifier is part of the key, so a relaunched application
/// never sees the menus of its previous instance.
struct MenuCacheKey {
    std::optional<Text> bundleIdentifier;
    std::int64_t processIdentifier = 0;

    friend bool operator==(const MenuCacheKey&, const MenuCacheKey&) = default;

    [[nodiscard]] static MenuCacheKey of(const RunningApplication& application) {
        return {application.bundleIdentifier(), application.processIdentifier()};
    }
};

struct MenuCacheKeyHash {
    std::size_t operator()(const MenuCacheKey& key) const;
};

/// The last scanned menu tree of each application instance, kept in memory for half a minute. `now` must come
/// from a clock that nobody can set: if a clock were set back an hour, old menus would count as fresh for an
/// hour.
class MenuCache {
  public:
    /// The lifetime in seconds, for display and documentation; lookups use a separate constant.
    double timeToLive = 30.0;

    /// The items stored under the key at most 30 seconds before `now` (a time before they were stored counts
    /// as fresh); absent otherwise, and the entry is then removed. Entries of all applications that have
    /// ended are removed as well.
    [[nodiscard]] std::optional<std::vector<ScannedMenuItem>> cachedItems(const MenuCacheKey& key,
                                                                          Uptime now);

    /// Sets the application's entry; an empty list is kept and served like any other.
    void store(const std::shared_ptr<const RunningApplication>& application,
               std::vector<ScannedMenuItem> items, Uptime now);

  private:
    struct Entry {
        std::vector<ScannedMenuItem> items;
        Uptime storedAt;
        std::shared_ptr<const RunningApplication> application; ///< Null when its end cannot be detected.
    };

    std::unordered_map<MenuCacheKey, Entry, MenuCacheKeyHash> entries_;
};

} // namespace tovrel
