#pragma once

#include <chrono>
#include <vector>

#include <gtest/gtest.h>

#include "platform/MainQueue.h"

namespace tovrel {

/// What each main queue promises. A rig has one, and offers:
///
///     MainQueue& queue()
///     bool until(condition)   lets the main thread work; whether the condition came to hold in time
///     auto now()              the time, by the clock of the queue
///     void end()              destroys the queue, and lets the main thread work for 20 ms more
template <typename Rig>
class MainQueueContract : public testing::Test {};

TYPED_TEST_SUITE_P(MainQueueContract);

TYPED_TEST_P(MainQueueContract, RunsTasksLaterInTheOrderOfTheirTimes) {
    using std::chrono_literals::operator""ms;
    TypeParam rig;
    std::vector<int> ran;
    const auto noting = [&](int number) { return [&ran, number] { ran.push_back(number); }; };
    rig.queue().postAfter(30ms, noting(5));
    rig.queue().postAfter(30ms, noting(6));
    rig.queue().postAfter(10ms, noting(4));
    rig.queue().post(noting(1));
    rig.queue().postAfter(0ms, noting(2));
    rig.queue().post(noting(3));
    EXPECT_TRUE(ran.empty());
    ASSERT_TRUE(rig.until([&] { return ran.size() == 6; }));
    EXPECT_EQ(ran, (std::vector{1, 2, 3, 4, 5, 6}));

    rig.queue().post([&] {
        rig.queue().post(noting(8));
        ran.push_back(7);
    });
    ASSERT_TRUE(rig.until([&] { return ran.size() == 8; }));
    EXPECT_EQ(ran.back(), 8) << "a task of a task is a later one";
}

TYPED_TEST_P(MainQueueContract, RunsNoTaskEarly) {
    TypeParam rig;
    using std::chrono_literals::operator""ms;
    for (const auto delay : {1ms, 7ms, 40ms}) {
        const auto start = rig.now();
        auto ran = start;
        rig.queue().postAfter(delay, [&] { ran = rig.now(); });
        ASSERT_TRUE(rig.until([&] { return ran != start; }));
        EXPECT_GE(ran - start, delay);
    }
}

TYPED_TEST_P(MainQueueContract, DropsWhatWaitsWhenItEnds) {
    TypeParam rig;
    int ran = 0;
    rig.queue().post([&] { ++ran; });
    rig.queue().postAfter(std::chrono::milliseconds(1), [&] { ++ran; });
    rig.end();
    EXPECT_EQ(ran, 0);
}

REGISTER_TYPED_TEST_SUITE_P(MainQueueContract, RunsTasksLaterInTheOrderOfTheirTimes, RunsNoTaskEarly,
                            DropsWhatWaitsWhenItEnds);

} // namespace tovrel
