#pragma once

#include <ostream>

#include "support/Json.h"
#include "support/PrintableText.h"

namespace tovrel {

/// Prints a value as compact JSON that is safe to show on a terminal.
inline void printJson(std::ostream& out, const json::Value& value) {
    out << printableJson(json::dump(value));
}

/// Prints an array as printJson would, but element by element, so that a long list is never in memory as a
/// whole.
template <typename Range, typename Encode>
void printJsonArray(std::ostream& out, const Range& range, const Encode& encode) {
    out << '[';
    bool isFirst = true;
    for (const auto& element : range) {
        out << (isFirst ? "" : ",");
        printJson(out, encode(element));
        isFirst = false;
    }
    out << ']';
}

} // namespace tovrel
