#pragma once

#include "platform/PreferencesDomain.h"
#include "support/Json.h"

namespace tovrel {

/// The type's name: "data", "string" or "boolean".
const char* typeName(const PreferenceValue& value);

/// {"type": …, "value": …}. Data that is not UTF-8 is written in Base64 beside "encoding": "base64", so that
/// every value can be restored exactly.
json::Value toJson(const PreferenceValue& value);

/// Reads a value that `toJson` wrote; throws json::DecodeError.
PreferenceValue preferenceValueFrom(const json::Value& value);

} // namespace tovrel
