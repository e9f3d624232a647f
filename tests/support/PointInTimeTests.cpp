#include "support/PointInTime.h"

#include <chrono>

#include <gtest/gtest.h>

namespace tovrel {
namespace {

TEST(PointInTime, CountsFromTheFirstOfJanuary2001) {
    using namespace std::chrono;
    const auto sinceReferenceDate = [] {
        const duration<double> passed = system_clock::now() - sys_days(year(2001) / January / 1);
        return PointInTime{passed.count()};
    };
    const PointInTime before = sinceReferenceDate();
    const PointInTime now = currentTime();
    constexpr double rounding = 0.001;
    EXPECT_GT(now.secondsSinceReferenceDate, before.secondsSinceReferenceDate - rounding);
    EXPECT_GT(sinceReferenceDate().secondsSinceReferenceDate, now.secondsSinceReferenceDate - rounding);
}

} // namespace
} // namespace tovrel
