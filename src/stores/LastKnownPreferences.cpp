#include "stores/LastKnownPreferences.h"

namespace tovrel {

LastKnownPreferences::LastKnownPreferences(PreferencesDomain& store) : store_(store) {
    for (auto& [key, value] : store.all()) {
        known_.emplace(std::move(key), std::move(value));
    }
}

std::optional<PreferenceValue> LastKnownPreferences::value(const std::string& key) {
    std::optional<PreferenceValue> value = store_.value(key);
    if (store_.lastReadSucceeded()) {
        known_[key] = value;
        return value;
    }
    const auto known = known_.find(key);
    return known == known_.end() ? std::nullopt : known->second;
}

bool LastKnownPreferences::set(const std::string& key, const PreferenceValue& value) {
    const bool isStored = noteChange(store_.set(key, value));
    if (isStored) {
        known_[key] = value;
    }
    return isStored;
}

bool LastKnownPreferences::setAll(const std::vector<std::pair<std::string, PreferenceValue>>& values) {
    const bool isStored = noteChange(store_.setAll(values));
    if (isStored) {
        for (const auto& [key, value] : values) {
            known_[key] = value;
        }
    }
    return isStored;
}

bool LastKnownPreferences::remove(const std::string& key) {
    const bool isStored = noteChange(store_.remove(key));
    if (isStored) {
        known_[key] = std::nullopt;
    }
    return isStored;
}

bool LastKnownPreferences::noteChange(bool isStored) {
    if (!isStored) {
        unstoredChange_.set(store_.lastFailure());
    } else if (unstoredChange_.get()) {
        unstoredChange_.set(std::nullopt);
    }
    return isStored;
}

} // namespace tovrel
