#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/PreferencesDomain.h"
#include "support/Observable.h"

namespace tovrel {

/// The reason why the last change could not be stored; absent when it could, and before the first.
using UnstoredChange = Observable<std::optional<PreferencesFailure>>;

/// A domain for a program that must go on while its preferences cannot be read: it then returns the last
/// known value. It also remembers whether the last change was stored, so that the user can be told.
///
/// Otherwise it behaves like the domain behind it: a value that could not be read cannot be set, so a value
/// from memory never replaces what another process has stored meanwhile. A change that was not stored is not
/// remembered.
class LastKnownPreferences : public PreferencesDomain {
  public:
    /// The store must outlive the object, which reads all values at once as the first known ones.
    explicit LastKnownPreferences(PreferencesDomain& store);

    /// The stored value, or the last known one if it cannot be read: `lastReadSucceeded` tells.
    [[nodiscard]] std::optional<PreferenceValue> value(const std::string& key) override;
    bool set(const std::string& key, const PreferenceValue& value) override;
    bool setAll(const std::vector<std::pair<std::string, PreferenceValue>>& values) override;
    bool remove(const std::string& key) override;
    /// The stored values, and nothing from memory.
    [[nodiscard]] std::vector<std::pair<std::string, PreferenceValue>> all() override { return store_.all(); }
    [[nodiscard]] std::uint64_t revision() override { return store_.revision(); }
    [[nodiscard]] bool lastReadSucceeded() const override { return store_.lastReadSucceeded(); }
    [[nodiscard]] PreferencesFailure lastFailure() const override { return store_.lastFailure(); }

    [[nodiscard]] const UnstoredChange& unstoredChange() const { return unstoredChange_; }

  private:
    bool noteChange(bool isStored);

    PreferencesDomain& store_;
    std::map<std::string, std::optional<PreferenceValue>> known_; ///< Absent: known to have no value.
    UnstoredChange unstoredChange_;
};

} // namespace tovrel
