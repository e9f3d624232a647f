#pragma once

#include <map>

#include "platform/MainQueue.h"

namespace tovrel {

/// A main queue whose clock moves only when it is told to.
class ManualQueue : public MainQueue {
  public:
    void post(Task task) override { postAfter({}, std::move(task)); }
    void postAfter(std::chrono::milliseconds delay, Task task) override {
        tasks_.emplace(now_ + delay, std::move(task));
    }

    /// Moves the clock and runs, in order, what has become due, also what such tasks post in turn.
    void advance(std::chrono::milliseconds time) {
        const auto end = now_ + time;
        while (!tasks_.empty() && tasks_.begin()->first <= end) {
            now_ = tasks_.begin()->first;
            const Task task = std::move(tasks_.begin()->second);
            tasks_.erase(tasks_.begin());
            task();
        }
        now_ = end;
    }

    /// Runs what is due without moving the clock.
    void runDue() { advance({}); }

    [[nodiscard]] std::size_t waitingTasks() const { return tasks_.size(); }

  private:
    std::chrono::milliseconds now_{};
    std::multimap<std::chrono::milliseconds, Task> tasks_;
};

} // namespace tovrel
