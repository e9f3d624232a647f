#include "platform/x11/hotkeys/KeyboardGuard.h"

#include <atomic>

#include <gtest/gtest.h>

#include "platform/linux/TestLoop.h"

namespace tovrel {
namespace {

TEST(KeyboardGuardTest, EndsEachHoldOnceAndNoneForAnother) {
    std::atomic<int> letGo = 0;
    int requests = 0;
    const auto request = [&] { ++requests; };
    TestLoop loop;
    KeyboardGuard guard([&] { ++letGo; });
    EXPECT_FALSE(guard.end(0, request));
    const auto first = guard.begin();
    EXPECT_TRUE(guard.during(first, request));
    EXPECT_TRUE(guard.end(first, request));
    EXPECT_FALSE(guard.end(first, request));
    const auto second = guard.begin();
    EXPECT_FALSE(guard.end(first, request));
    EXPECT_FALSE(guard.during(first, request));
    EXPECT_TRUE(guard.isHeld(second));
    EXPECT_EQ(requests, 2);

    ASSERT_TRUE(loop.runUntil([&] { return letGo == 1; })) << "nobody else ends it";
    EXPECT_FALSE(guard.isHeld(second));
    EXPECT_FALSE(guard.end(second, request));

    const auto third = guard.begin();
    const auto fourth = guard.begin();
    EXPECT_FALSE(guard.end(third, request)) << "the server has ended it";
    EXPECT_TRUE(guard.end(fourth, request));
    const auto fifth = guard.begin();
    ASSERT_TRUE(loop.runUntil([&] { return letGo == 2; }));
    EXPECT_FALSE(guard.isHeld(fifth));
    EXPECT_EQ(requests, 3);
}

} // namespace
} // namespace tovrel
