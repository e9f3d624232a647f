#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <vector>

#include "platform/MainQueue.h"
#include "platform/posix/EventSource.h"

namespace tovrel {

/// A main loop over event sources for tests.
class TestLoop : public MainQueue {
  public:
    void post(Task task) override { postAfter(std::chrono::milliseconds(0), std::move(task)); }
    void postAfter(std::chrono::milliseconds delay, Task task) override;

    void watch(EventSource& source) { sources_.push_back(&source); }
    void forget(const EventSource& source) { std::erase(sources_, &source); }

    /// Runs until the condition holds; returns false if it does not before the test's deadline.
    bool runUntil(const std::function<bool()>& condition,
                  std::chrono::milliseconds patience = std::chrono::seconds(10));

    /// How often a source had events, not counting timers.
    [[nodiscard]] int wakeUps() const { return wakeUps_; }

  private:
    void runDueTasks();
    void waitAndDispatch(std::chrono::steady_clock::time_point deadline);

    std::multimap<std::chrono::steady_clock::time_point, Task> tasks_;
    std::vector<EventSource*> sources_;
    int wakeUps_ = 0;
};

} // namespace tovrel
