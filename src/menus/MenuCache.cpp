#include "menus/MenuCache.h"

#include <functional>
#include <utility>

namespace tovrel {

std::size_t MenuCacheKeyHash::operator()(const MenuCacheKey& key) const {
    // A polynomial hash combines presence marker, identifier and process.
    constexpr std::size_t factor = 1099511628211U; // the 64-bit FNV prime
    std::size_t hash = key.bundleIdentifier ? 1 : 0;
    if (key.bundleIdentifier) {
        hash = hash * factor ^ key.bundleIdentifier->hash();
    }
    return hash * factor ^ std::hash<std::int64_t>{}(key.processIdentifier);
}

std::optional<std::vector<ScannedMenuItem>> MenuCache::cachedItems(const MenuCacheKey& key, Uptime now) {
    constexpr std::chrono::seconds lifetime(30);
    // The system may reuse the process identifier of an application that has ended.
    std::erase_if(entries_, [](const auto& entry) {
        return entry.second.application && entry.second.application->isTerminated();
    });
    const auto found = entries_.find(key);
    if (found == entries_.end()) {
        return std::nullopt;
    }
    if (now - found->second.storedAt <= lifetime) {
        return found->second.items;
    }
    entries_.erase(found);
    return std::nullopt;
}

void MenuCache::store(const std::shared_ptr<const RunningApplication>& application,
                      std::vector<ScannedMenuItem> items, Uptime now) {
    // An application whose process cannot be seen, for instance in another container, would always seem to
    // have ended.
    entries_.insert_or_assign(
        MenuCacheKey::of(*application),
        Entry{std::move(items), now, application->isTerminated() ? nullptr : application});
}

} // namespace tovrel
