#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "support/PointInTime.h"
#include "support/Text.h"

/// Reads and writes JSON documents: compact UTF-8, absent optionals left out, unknown members ignored. A
/// value of the wrong type makes the whole document invalid.
namespace tovrel::json {

using Value = nlohmann::json;

/// Thrown when a document cannot be decoded, only inside decoders; `decodeDocument` (JsonDocument.h) catches
/// it.
class DecodeError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The deepest nesting of arrays and objects; deeper documents are refused before anything recurses on them.
inline constexpr int maximumDepth = 512;

/// Parses a document, which may be a fragment such as a bare string. Throws DecodeError when it is not JSON
/// to its last byte (comments and bytes after a NUL are not), not UTF-8, or nested deeper than
/// `maximumDepth`.
Value parse(std::string_view bytes);

/// Typed reads. Each throws DecodeError when the value has another type. An integer may be written with a
/// fraction or exponent as long as it is integral and its magnitude below 2^63 (3.0, 1e3); true and false are
/// not numbers.
Text textFrom(const Value& value);
std::int64_t integerFrom(const Value& value);
bool booleanFrom(const Value& value);
PointInTime pointInTimeFrom(const Value& value);
std::vector<Text> textsFrom(const Value& value);

/// The member of an object; throws DecodeError when `object` is no object or has no such member.
const Value& member(const Value& object, const char* name);

/// The member of an object, or null when it is missing or the JSON null. Throws when `object` is no object.
const Value* optionalMember(const Value& object, const char* name);

/// An optional text member: absent when missing or null.
std::optional<Text> optionalTextMember(const Value& object, const char* name);

/// Each throws DecodeError unless the value is an array or an object, respectively.
const Value& requireArray(const Value& value);
const Value& requireObject(const Value& value);

Value toJson(const Text& text);
Value toJson(const std::vector<Text>& texts);
/// Writes a whole number of seconds without a fraction. Throws EncodeError for a time that is not finite.
Value toJson(PointInTime time);

/// Thrown when a value has no JSON form.
class EncodeError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The compact bytes of a value.
std::string dump(const Value& value);

} // namespace tovrel::json
