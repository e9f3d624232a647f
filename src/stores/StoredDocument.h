#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/PreferencesDomain.h"
#include "support/JsonDocument.h"

/// Reads and writes the JSON document that a store keeps as a data value under one key. Failures are not
/// reported.
namespace tovrel::stored_document {

/// The decoded document; absent when the key does not exist, when it holds no data, or when decoding fails in
/// any way. `decode` takes a json::Value and may throw json::DecodeError.
template <typename Decode>
auto read(PreferencesDomain& domain, const std::string& key, const Decode& decode) {
    const std::optional<std::string> bytes = dataValue(domain, key);
    return bytes ? json::decodeDocument(*bytes, decode) : std::nullopt;
}

/// Replaces the document by the result of `encode` and returns the bytes written. Absent when there is no
/// JSON form (`encode` throws json::EncodeError) or it could not be stored; then the previous document stays.
template <typename Encode>
std::optional<std::string> write(PreferencesDomain& domain, const std::string& key, const Encode& encode) {
    try {
        PreferenceData data{json::dump(encode())};
        if (domain.set(key, data)) {
            return std::move(data.bytes);
        }
    } catch (const json::EncodeError&) { // NOLINT(bugprone-empty-catch): nothing is written, as promised
    }
    return std::nullopt;
}

/// Reads a document that is an array of records; one bad element makes it unreadable. Empty when it cannot be
/// read.
template <typename Record>
std::vector<Record> readList(PreferencesDomain& domain, const std::string& key,
                             Record (*recordFrom)(const json::Value&)) {
    const auto decode = [recordFrom](const json::Value& array) {
        std::vector<Record> list;
        list.reserve(json::requireArray(array).size());
        for (const json::Value& element : array) {
            list.push_back(recordFrom(element));
        }
        return list;
    };
    return read(domain, key, decode).value_or(std::vector<Record>());
}

/// Replaces such a document; the records need a `toJson`.
template <typename Record>
void writeList(PreferencesDomain& domain, const std::string& key, const std::vector<Record>& list) {
    write(domain, key, [&list] {
        json::Value array = json::Value::array();
        for (const Record& record : list) {
            array.push_back(toJson(record));
        }
        return array;
    });
}

} // namespace tovrel::stored_document
