#include "platform/preferences/LockPatience.h"

#include <gtest/gtest.h>

namespace tovrel {
namespace {

using namespace std::chrono_literals;

class LockPatienceTest : public testing::Test {
  protected:
    /// Waits as long as the patience lasts, and returns how long that was.
    std::chrono::nanoseconds operation(LockPatience& patience) {
        const auto start = now_;
        patience.beginOperation();
        while (patience.waitAMoment()) {
        }
        return now_ - start;
    }

    LockPatience make(const LockPatience::Terms& terms) {
        return LockPatience(terms, {.now = [this] { return now_; },
                                    .sleep = [this](std::chrono::nanoseconds time) { now_ += time; }});
    }

    std::chrono::steady_clock::time_point now_;
};

TEST_F(LockPatienceTest, OperationsOfAPeriodShareIt) {
    LockPatience patience = make({100ms, 1s});
    EXPECT_EQ(operation(patience), 100ms);
    EXPECT_EQ(operation(patience), 0ms);
    now_ += 899ms;
    EXPECT_EQ(operation(patience), 0ms);
    now_ += 1ms;
    EXPECT_EQ(operation(patience), 100ms);

    now_ += 5s;
    patience.beginOperation();
    EXPECT_TRUE(patience.waitAMoment()); // the lock was released
    EXPECT_EQ(operation(patience), 99ms);
}

TEST_F(LockPatienceTest, WithoutAPeriodEachOperationHasItsOwnPatience) {
    LockPatience patience = make({5s, 0s});
    EXPECT_EQ(operation(patience), 5s);
    EXPECT_EQ(operation(patience), 5s);
}

} // namespace
} // namespace tovrel
