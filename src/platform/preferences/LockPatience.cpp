#include "platform/preferences/LockPatience.h"

#include <algorithm>
#include <thread>
#include <utility>

namespace tovrel {

using namespace std::chrono_literals;

LockPatience::Time LockPatience::Time::real() {
    return {.now = std::chrono::steady_clock::now,
            .sleep = [](std::chrono::nanoseconds duration) { std::this_thread::sleep_for(duration); }};
}

LockPatience::LockPatience(const Terms& terms, Time time) : terms_(terms), time_(std::move(time)) {}

void LockPatience::beginOperation() {
    if (firstWait_ && time_.now() - *firstWait_ >= terms_.period) {
        firstWait_.reset();
        waited_ = 0ns;
    }
}

bool LockPatience::waitAMoment() {
    if (waited_ >= terms_.amount) {
        return false;
    }
    const auto start = time_.now();
    if (!firstWait_) {
        firstWait_ = start;
    }
    time_.sleep(std::min<std::chrono::nanoseconds>(1ms, terms_.amount - waited_));
    waited_ += time_.now() - start; // may be longer than requested on a busy machine
    return true;
}

} // namespace tovrel
