#include "menus/MenuCache.h"

#include <functional>
#include <utility>

namespace tovrel {

std::size_t MenuCacheKeyHash::operator()(const MenuCacheKey& key) const {
    // Combined as in a polynomial hash: presence marker, identifier, process.
    constexpr std::size_t factor = 1099511628211U; // the 64-bit FNV prime
    std::size_t hash = key.bundleIdentifier ? 1 : 0;
    if (key.bundleIdentifier) {
        hash = hash * factor ^ key.bundleIdentifier->hash();
    }
    return hash * factor ^ std::hash<std::int64_t>{}(key.processIdentifier);
}

std::optional<std::vector<ScannedMenuItem>> MenuCache::cachedItems(const MenuCacheKey& key, PointInTime now) {
    constexpr double lifetime = 30.0;
    const auto found = entries_.find(key);
    if (found == entries_.end()) {
        return std::nullopt;
    }
    if (secondsBetween(found->second.storedAt, now) <= lifetime) {
        return found->second.items;
    }
    entries_.erase(found);
    return std::nullopt;
}

void MenuCache::store(const MenuCacheKey& key, std::vector<ScannedMenuItem> items, PointInTime now) {
    entries_.insert_or_assign(key, Entry{std::move(items), now});
}

} // namespace tovrel
