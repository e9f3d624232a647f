#include "platform/linux/TestLoop.h"

#include <algorithm>
#include <poll.h>

namespace tovrel {

using namespace std::chrono_literals;

void TestLoop::postAfter(std::chrono::milliseconds delay, Task task) {
    tasks_.emplace(std::chrono::steady_clock::now() + delay, std::move(task));
}

bool TestLoop::runUntil(const std::function<bool()>& condition, std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= deadline) {
            return false;
        }
        runDueTasks();
        if (!condition()) {
            waitAndDispatch(deadline);
        }
    }
    return true;
}

void TestLoop::runDueTasks() {
    const auto now = std::chrono::steady_clock::now();
    while (!tasks_.empty() && tasks_.begin()->first <= now) {
        const Task task = std::move(tasks_.begin()->second);
        tasks_.erase(tasks_.begin());
        task();
    }
}

void TestLoop::waitAndDispatch(std::chrono::steady_clock::time_point deadline) {
    // Conditions may depend on other processes, so they are checked every few milliseconds in any case.
    auto next = std::min(deadline, std::chrono::steady_clock::now() + 5ms);
    if (!tasks_.empty()) {
        next = std::min(next, tasks_.begin()->first);
    }
    std::vector<pollfd> watched;
    for (const EventSource* source : sources_) {
        watched.push_back({source->fileDescriptor(), POLLIN, 0});
    }
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(next - std::chrono::steady_clock::now());
    poll(watched.data(), watched.size(), std::max(0, static_cast<int>(left.count())));
    for (std::size_t i = 0; i < watched.size(); ++i) {
        if (watched[i].revents != 0) {
            ++wakeUps_;
            sources_[i]->dispatch();
        }
    }
}

} // namespace tovrel
