#pragma once

#include <ostream>

#include "support/Json.h"

namespace tovrel {

/// Prints an array as compact JSON, one element after the other, so that a long list is never in memory
/// whole.
template <typename Range, typename Encode>
void printJsonArray(std::ostream& out, const Range& range, const Encode& encode) {
    out << '[';
    bool isFirst = true;
    for (const auto& element : range) {
        out << (isFirst ? "" : ",") << json::dump(encode(element));
        isFirst = false;
    }
    out << ']';
}

} // namespace tovrel
