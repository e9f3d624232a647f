#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "support/Text.h"

namespace tovrel {

/// Raw bytes as a preference value; the stores keep UTF-8 JSON documents in it.
struct PreferenceData {
    std::string bytes;

    friend bool operator==(const PreferenceData&, const PreferenceData&) = default;
};

/// A typed preference value.
using PreferenceValue = std::variant<PreferenceData, Text, bool>;

/// What prevents reading or changing preferences.
enum class PreferencesObstacle {
    locked,       ///< Another program keeps them locked.
    noRoom,       ///< The disk is full, or a quota used up.
    notPermitted, ///< They may only be read, or may not even be read.
    laterVersion, ///< A later version of this program wrote them.
    foreign,      ///< Their file is another program's.
    notAFile,     ///< Something other than a file is in its place.
    other,        ///< See the reason.
};

/// Why an operation on the preferences failed.
struct PreferencesFailure {
    PreferencesObstacle obstacle = PreferencesObstacle::other;
    std::string reason; ///< In English, as in "the disk is full".

    friend bool operator==(const PreferencesFailure&, const PreferencesFailure&) = default;
};

/// The user's persistent key-value store.
///
/// When `set`, `setAll` or `remove` returns true the change is on disk and survives the kill of the process
/// and a loss of power. Several processes may read and write one domain at once. Keys are compared byte by
/// byte. An implementation reports on standard error why it failed, once for each kind of failure.
class PreferencesDomain {
  public:
    virtual ~PreferencesDomain() = default;

    /// The value under the key, of whichever type; absent when there is none or it cannot be read. A key
    /// whose last read failed cannot be set until it has been read, so that a value made up for a missing one
    /// cannot replace the stored one.
    [[nodiscard]] virtual std::optional<PreferenceValue> value(const std::string& key) = 0;

    /// Stores the value, replacing any other. False when it could not be stored: the value before stays.
    virtual bool set(const std::string& key, const PreferenceValue& value) = 0;

    /// Stores all the values, replacing any others under their keys, or none of them. False when none was
    /// stored.
    virtual bool setAll(const std::vector<std::pair<std::string, PreferenceValue>>& values) = 0;

    /// Removes the value, if any. False when that could not be stored: the value before stays.
    virtual bool remove(const std::string& key) = 0;

    /// Every key with its value, ordered by key; nothing when they cannot be read.
    [[nodiscard]] virtual std::vector<std::pair<std::string, PreferenceValue>> all() = 0;

    /// A number that differs from the one before whenever any value may have changed since, whether through
    /// this object or another process. Cheap next to reading a large value.
    [[nodiscard]] virtual std::uint64_t revision() = 0;

    /// Whether the last `value` or `all` really read the store: tells an absent value from an unreadable one.
    [[nodiscard]] virtual bool lastReadSucceeded() const = 0;

    /// Why the last operation that failed did so.
    [[nodiscard]] virtual PreferencesFailure lastFailure() const = 0;
};

/// The bytes under the key; absent when there is no value or one of another type.
std::optional<std::string> dataValue(PreferencesDomain& domain, const std::string& key);

/// The boolean under the key; absent when there is no value or one of another type.
std::optional<bool> booleanValue(PreferencesDomain& domain, const std::string& key);

} // namespace tovrel
