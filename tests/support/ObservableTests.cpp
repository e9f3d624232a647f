#include "support/Observable.h"

#include <memory>
#include <optional>
#include <string>

#include <gtest/gtest.h>

namespace tovrel {
namespace {

TEST(Observable, TellsOfEveryAssignmentUntilTheSubscriptionEnds) {
    Observable<int> value(1);
    int calls = 0;
    Subscription subscription = value.subscribe([&] { ++calls; });
    value.set(1);
    value.set(2);
    EXPECT_EQ(calls, 2);
    Subscription moved = std::move(subscription);
    value.set(3);
    EXPECT_EQ(calls, 3);
    moved = Subscription();
    value.set(4);
    EXPECT_EQ(calls, 3);
}

TEST(Observable, ObserversMayChangeTheListWhileTheyAreCalled) {
    auto value = std::make_unique<Observable<int>>(0);
    std::string order;
    std::optional<Subscription> second;
    std::vector<Subscription> added;
    std::optional<Subscription> first = value->subscribe([&] {
        order += "1";
        second.reset(); // the one after it must not be called any more
        added.push_back(value->subscribe([&] { order += "3"; }));
        first.reset();
    });
    second = value->subscribe([&] { order += "2"; });
    value->set(1);
    EXPECT_EQ(order, "1");
    value->set(2);
    EXPECT_EQ(order, "13");

    const Subscription last = value->subscribe([&] { value.reset(); });
    value->set(3); // destroys the observable, with this observer still running
    EXPECT_EQ(value, nullptr);
}

} // namespace
} // namespace tovrel
