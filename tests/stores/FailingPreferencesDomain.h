#pragma once

#include "platform/memory/MemoryPreferencesDomain.h"

namespace tovrel {

/// A domain in memory that counts reads and can refuse writes, as a full disk does.
class FailingPreferencesDomain : public MemoryPreferencesDomain {
  public:
    std::optional<PreferenceValue> value(const std::string& key) override {
        ++readCount;
        return MemoryPreferencesDomain::value(key);
    }
    bool set(const std::string& key, const PreferenceValue& value) override {
        return !refusesWrites && MemoryPreferencesDomain::set(key, value);
    }

    int readCount = 0;
    bool refusesWrites = false;
};

} // namespace tovrel
