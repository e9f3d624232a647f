#include "platform/memory/MemoryPreferencesDomain.h"

namespace tovrel {

std::optional<PreferenceValue> MemoryPreferencesDomain::value(const std::string& key) {
    const auto found = values_.find(key);
    return found == values_.end() ? std::nullopt : std::optional(found->second);
}

bool MemoryPreferencesDomain::set(const std::string& key, const PreferenceValue& value) {
    values_.insert_or_assign(key, value);
    ++revision_;
    return true;
}

bool MemoryPreferencesDomain::setAll(const std::vector<std::pair<std::string, PreferenceValue>>& values) {
    for (const auto& [key, value] : values) {
        set(key, value);
    }
    return true;
}

bool MemoryPreferencesDomain::remove(const std::string& key) {
    if (values_.erase(key) > 0) {
        ++revision_;
    }
    return true;
}

std::vector<std::pair<std::string, PreferenceValue>> MemoryPreferencesDomain::all() {
    return {values_.begin(), values_.end()};
}

} // namespace tovrel
