#pragma once

#include <chrono>
#include <functional>

namespace tovrel {

/// The tasks the main thread does between events. Tasks that are due at the same time run in the order in
/// which they were posted. Those that wait when the queue ends do not run.
class MainQueue {
  public:
    using Task = std::function<void()>;

    virtual ~MainQueue() = default;

    /// Runs the task at a later turn of the main thread, never before this returns; a task that posts another
    /// is done first.
    virtual void post(Task task) = 0;

    /// Runs the task no earlier than `delay` from now; without a delay as `post` does.
    virtual void postAfter(std::chrono::milliseconds delay, Task task) = 0;
};

} // namespace tovrel
