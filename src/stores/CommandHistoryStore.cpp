#include "stores/CommandHistoryStore.h"

#include <algorithm>

#include "stores/StoredDocument.h"
#include "support/CheckedMath.h"
#include "support/JsonDocument.h"

namespace tovrel {
namespace {

CommandHistorySnapshot::Records recordsFrom(const json::Value& document) {
    CommandHistorySnapshot::Records records;
    for (const auto& [commandID, record] : json::requireObject(document).items()) {
        records.insert_or_assign(commandID, commandRankSignalsFrom(record));
    }
    return records;
}

json::Value toJson(const CommandHistorySnapshot::Records& records) {
    json::Value document = json::Value::object();
    for (const auto& [commandID, record] : records) {
        document[commandID.utf8()] = toJson(record);
    }
    return document;
}

} // namespace

CommandRankSignals CommandHistorySnapshot::rankSignals(const Text& commandID) const {
    const auto found = records_.find(commandID);
    return found == records_.end() ? CommandRankSignals{} : found->second;
}

CommandHistoryStore::CommandHistoryStore(PreferencesDomain& userDefaults, std::string storageKey,
                                         const TextServices& text)
    : userDefaults_(userDefaults), storageKey_(std::move(storageKey)), text_(text) {}

CommandRankSignals CommandHistoryStore::rankSignals(const Text& commandID) {
    return snapshot()->rankSignals(commandID);
}

std::shared_ptr<const CommandHistorySnapshot> CommandHistoryStore::snapshot() {
    // The revision is read before the bytes, so that the next call notices a change between the two.
    const std::uint64_t revision = userDefaults_.revision();
    if (snapshot_ && revision == checkedRevision_) {
        return snapshot_;
    }
    std::optional<std::string> bytes = dataValue(userDefaults_, storageKey_);
    if (!snapshot_ || bytes != snapshotBytes_) {
        auto records = bytes ? json::decodeDocument(*bytes, recordsFrom) : std::nullopt;
        snapshot_ = std::make_shared<CommandHistorySnapshot>(
            std::move(records).value_or(CommandHistorySnapshot::Records()));
        snapshotBytes_ = std::move(bytes);
    }
    // After a failed read the next call must read again.
    checkedRevision_ = userDefaults_.lastReadSucceeded() ? std::optional(revision) : std::nullopt;
    return snapshot_;
}

void CommandHistoryStore::recordUse(const Text& commandID, PointInTime date) {
    CommandHistorySnapshot::Records records = snapshot()->records();
    CommandRankSignals& record = records[commandID];
    record.usageCount = saturatingAdd(record.usageCount, 1);
    record.lastUsedAt = date;
    save(std::move(records));
}

void CommandHistoryStore::setFavorite(bool isFavorite, const Text& commandID) {
    CommandHistorySnapshot::Records records = snapshot()->records();
    records[commandID].isFavorite = isFavorite;
    save(std::move(records));
}

std::vector<CommandHistoryEntry> CommandHistoryStore::entries() {
    std::vector<CommandHistoryEntry> entries;
    for (const auto& [commandID, record] : snapshot()->records()) {
        entries.push_back({commandID, record.usageCount, record.lastUsedAt, record.isFavorite});
    }
    std::sort(entries.begin(), entries.end(),
              [this](const CommandHistoryEntry& left, const CommandHistoryEntry& right) {
                  if (left.lastUsedAt != right.lastUsedAt) {
                      return left.lastUsedAt > right.lastUsedAt; // an absent time is the smallest
                  }
                  if (left.usageCount != right.usageCount) {
                      return left.usageCount > right.usageCount;
                  }
                  return text_.isOrderedBefore(left.commandID, right.commandID);
              });
    return entries;
}

void CommandHistoryStore::clear() {
    userDefaults_.remove(storageKey_);
}

void CommandHistoryStore::save(CommandHistorySnapshot::Records records) {
    std::optional<std::string> written =
        stored_document::write(userDefaults_, storageKey_, [&] { return toJson(records); });
    if (written) {
        // The records are kept only once they are stored. The revision has moved on, so the next reader
        // compares the bytes, and decodes them if another process has replaced them meanwhile.
        snapshot_ = std::make_shared<CommandHistorySnapshot>(std::move(records));
        snapshotBytes_ = std::move(written);
    }
}

} // namespace tovrel
