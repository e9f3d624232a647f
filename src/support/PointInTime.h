#pragma once

#include <compare>

namespace tovrel {

/// A point in time: seconds, with fraction, since 2001-01-01 00:00:00 UTC, negative before.
struct PointInTime {
    double secondsSinceReferenceDate = 0;

    // clang-tidy 14 mistakes a rewritten comparison with 0 for one with a null pointer.
    // NOLINTNEXTLINE(modernize-use-nullptr)
    friend auto operator<=>(const PointInTime&, const PointInTime&) = default;
};

/// The system clock's time. Only the composition root reads it; everything else is handed its "now".
PointInTime currentTime();

} // namespace tovrel
