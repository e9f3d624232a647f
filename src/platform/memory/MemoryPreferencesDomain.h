#pragma once

#include <map>

#include "platform/PreferencesDomain.h"

namespace tovrel {

/// A preferences domain that lives as long as the object.
class MemoryPreferencesDomain : public PreferencesDomain {
  public:
    [[nodiscard]] std::optional<PreferenceValue> value(const std::string& key) override;
    bool set(const std::string& key, const PreferenceValue& value) override;
    bool setAll(const std::vector<std::pair<std::string, PreferenceValue>>& values) override;
    bool remove(const std::string& key) override;
    [[nodiscard]] std::vector<std::pair<std::string, PreferenceValue>> all() override;
    [[nodiscard]] std::uint64_t revision() override { return revision_; }
    [[nodiscard]] bool lastReadSucceeded() const override { return true; }
    [[nodiscard]] PreferencesFailure lastFailure() const override { return {}; }

  private:
    std::map<std::string, PreferenceValue> values_;
    std::uint64_t revision_ = 0;
};

} // namespace tovrel
