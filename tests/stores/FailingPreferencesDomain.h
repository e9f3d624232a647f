#pragma once

#include <set>

#include "platform/memory/MemoryPreferencesDomain.h"

namespace tovrel {

/// A domain in memory that counts reads. It can refuse reads, as a lock does, and writes, as a full disk
/// does.
class FailingPreferencesDomain : public MemoryPreferencesDomain {
  public:
    std::optional<PreferenceValue> value(const std::string& key) override {
        ++readCount;
        if (refusesReads) {
            unreadKeys_.insert(key);
            return std::nullopt;
        }
        unreadKeys_.erase(key);
        return MemoryPreferencesDomain::value(key);
    }
    bool set(const std::string& key, const PreferenceValue& value) override {
        return !refusesWrites && !unreadKeys_.contains(key) && MemoryPreferencesDomain::set(key, value);
    }
    bool remove(const std::string& key) override {
        return !refusesWrites && MemoryPreferencesDomain::remove(key);
    }
    [[nodiscard]] std::vector<std::pair<std::string, PreferenceValue>> all() override {
        if (refusesReads) {
            return {};
        }
        return MemoryPreferencesDomain::all();
    }
    /// Changes while reads are refused, because a store that cannot be read may have changed.
    [[nodiscard]] std::uint64_t revision() override {
        return refusesReads ? unknownRevision_-- : MemoryPreferencesDomain::revision();
    }
    [[nodiscard]] bool lastReadSucceeded() const override { return !refusesReads; }
    [[nodiscard]] PreferencesFailure lastFailure() const override { return failure; }

    int readCount = 0;
    bool refusesReads = false;
    bool refusesWrites = false;
    PreferencesFailure failure{PreferencesObstacle::locked, "another program keeps it locked"};

  private:
    std::set<std::string> unreadKeys_;
    std::uint64_t unknownRevision_ = UINT64_MAX;
};

} // namespace tovrel
