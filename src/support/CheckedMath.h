#pragma once

#include <cstdint>

#include "support/Fatal.h"

namespace tovrel {

/// Sum of two scores or counts; an overflow ends the process instead of wrapping.
inline std::int64_t checkedAdd(std::int64_t left, std::int64_t right) {
    std::int64_t result = 0;
    if (__builtin_add_overflow(left, right, &result)) {
        fatal("integer overflow in an addition");
    }
    return result;
}

/// Product of two scores or counts; an overflow ends the process instead of wrapping.
inline std::int64_t checkedMultiply(std::int64_t left, std::int64_t right) {
    std::int64_t result = 0;
    if (__builtin_mul_overflow(left, right, &result)) {
        fatal("integer overflow in a multiplication");
    }
    return result;
}

} // namespace tovrel
