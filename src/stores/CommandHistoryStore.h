#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "model/Command.h"
#include "platform/PreferencesDomain.h"
#include "support/PointInTime.h"
#include "support/Text.h"
#include "support/TextServices.h"

namespace tovrel {

/// One row of the history as the settings list it; identified by `commandID`.
struct CommandHistoryEntry {
    Text commandID;
    std::int64_t usageCount = 0;
    std::optional<PointInTime> lastUsedAt; ///< Absent: never run, only marked as a favourite.
    bool isFavorite = false;

    friend bool operator==(const CommandHistoryEntry&, const CommandHistoryEntry&) = default;
};

/// The history as it was at one moment.
class CommandHistorySnapshot {
  public:
    using Records = std::unordered_map<Text, CommandRankSignals>; ///< By command id.

    CommandHistorySnapshot() = default;
    explicit CommandHistorySnapshot(Records records) : records_(std::move(records)) {}

    /// A command without a record is no favourite and has count 0 and no time.
    [[nodiscard]] CommandRankSignals rankSignals(const Text& commandID) const;
    [[nodiscard]] const Records& records() const { return records_; }

  private:
    Records records_;
};

/// Remembers for every command how often and when it was last run and whether it is a favourite, in one JSON
/// document: an object with a member for each command id. An unreadable document reads as an empty history,
/// and the next change replaces it; nothing is reported.
///
/// Every answer reflects the present document, whichever process wrote it. The document is decoded only when
/// its bytes have changed.
class CommandHistoryStore {
  public:
    /// The domain and the text services must outlive the store.
    CommandHistoryStore(PreferencesDomain& userDefaults, std::string storageKey, const TextServices& text);

    /// The signals of one command for the ranking. For many commands take a `snapshot` and ask that.
    [[nodiscard]] CommandRankSignals rankSignals(const Text& commandID);

    /// The present history. It does not change when the history does.
    [[nodiscard]] std::shared_ptr<const CommandHistorySnapshot> snapshot();

    /// Counts one use at `date`, which becomes the time of last use even if it is earlier than the one
    /// before. A date that is not finite cannot be written: nothing changes. A count of 2^63 - 1, which only
    /// a damaged document has, stays.
    void recordUse(const Text& commandID, PointInTime date);

    /// Sets or clears the mark; creates the record of a command without one in both cases.
    void setFavorite(bool isFavorite, const Text& commandID);

    /// Every record: the last used first, those never run last; then the most used; then by id as the user's
    /// locale orders it, ignoring case.
    [[nodiscard]] std::vector<CommandHistoryEntry> entries();

    /// Removes the document.
    void clear();

  private:
    void save(CommandHistorySnapshot::Records records);

    PreferencesDomain& userDefaults_;
    const std::string storageKey_;
    const TextServices& text_;

    // The last document read or written: decoded, as bytes (absent when there was no data), and the domain's
    // revision before they were read (absent when they could not be).
    std::shared_ptr<const CommandHistorySnapshot> snapshot_;
    std::optional<std::string> snapshotBytes_;
    std::optional<std::uint64_t> checkedRevision_;
};

} // namespace tovrel
