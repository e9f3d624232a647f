#pragma once

#include <chrono>
#include <functional>

namespace tovrel {

/// The tasks the main thread does between events. Tasks of equal due time run in the order they were posted.
class MainQueue {
  public:
    using Task = std::function<void()>;

    virtual ~MainQueue() = default;

    /// Runs the task at a later turn of the main thread, never before this returns.
    virtual void post(Task task) = 0;

    /// Runs the task no earlier than `delay` from now.
    virtual void postAfter(std::chrono::milliseconds delay, Task task) = 0;
};

} // namespace tovrel
