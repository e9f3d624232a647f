#pragma once

#include <optional>
#include <string_view>
#include <type_traits>

#include <nlohmann/json.hpp>

#include "support/Json.h"

namespace tovrel::json {

/// Parses and decodes a document; absent when either fails. `decode` takes a `const Value&` and may throw
/// DecodeError.
template <typename Decode>
std::optional<std::invoke_result_t<const Decode&, const Value&>> decodeDocument(std::string_view bytes,
                                                                                const Decode& decode) {
    try {
        return decode(parse(bytes));
    } catch (const DecodeError&) {
        return std::nullopt;
    }
}

} // namespace tovrel::json
