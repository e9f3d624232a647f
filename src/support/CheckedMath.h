#pragma once

#include <cstdint>
#include <limits>

#include "support/Fatal.h"

/// Arithmetic on scores and counts that never wraps. The program's own counts cannot overflow unless it is
/// broken, and that is fatal. A number from the preferences may have any value, and a damaged one must not
/// end the program at each start, so sums of such numbers stop at the largest or smallest value.
namespace tovrel {

/// Sum of two of the program's own numbers; an overflow ends the process.
inline std::int64_t checkedAdd(std::int64_t left, std::int64_t right) {
    std::int64_t result = 0;
    if (__builtin_add_overflow(left, right, &result)) {
        fatal("integer overflow in an addition");
    }
    return result;
}

/// Sum that involves a stored number.
inline std::int64_t saturatingAdd(std::int64_t left, std::int64_t right) {
    std::int64_t result = 0;
    if (__builtin_add_overflow(left, right, &result)) {
        using Limits = std::numeric_limits<std::int64_t>;
        return left < 0 ? Limits::min() : Limits::max();
    }
    return result;
}

/// Product that involves a stored number.
inline std::int64_t saturatingMultiply(std::int64_t left, std::int64_t right) {
    std::int64_t result = 0;
    if (__builtin_mul_overflow(left, right, &result)) {
        using Limits = std::numeric_limits<std::int64_t>;
        return (left < 0) == (right < 0) ? Limits::max() : Limits::min();
    }
    return result;
}

} // namespace tovrel
