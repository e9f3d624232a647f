#include "platform/linux/dbus/BoundedCalls.h"

#include <algorithm>
#include <utility>

namespace tovrel {

BoundedCalls::BoundedCalls(DBusConnection& connection, const CallLimits& limits, SteadyTime started)
    : connection_(connection), limits_(limits), budget_(limits, started), started_(started),
      receivedBefore_(connection.received()), lastAnswer_(std::chrono::steady_clock::now()),
      window_(connection, limits.callsInFlight) {}

void BoundedCalls::ask(Call call, Handler handler) {
    queue_.push_back({std::move(call), std::move(handler)});
}

bool BoundedCalls::run() {
    lastAnswer_ = std::chrono::steady_clock::now(); // Silence counts only from the first call on.
    while (!stopped_) {
        while (window_.hasRoom() && !queue_.empty()) {
            sendNext();
        }
        if (window_.isIdle()) {
            break;
        }
        waitForAnswer();
    }
    return !stopped_;
}

void BoundedCalls::sendNext() {
    Asked asked = std::move(queue_.front());
    queue_.pop_front();
    // A path from the application is well formed, because the bus checks it. So a call that cannot be built
    // or sent means that the connection is lost, which the next wait detects.
    const DBusMessage call = asked.call(connection_);
    const bool sent = window_.send(call, [this, handler = std::move(asked.handler)](DBusMessage& answer) {
        lastAnswer_ = std::chrono::steady_clock::now();
        if (saysApplicationIsGone(answer.errorName())) {
            stopped_ = connection_.isOpen() ? CallsStopped::gone : CallsStopped::disconnected;
        } else if (answer.errorName().empty()) {
            handler(answer);
        } else {
            DBusMessage nothing;
            handler(nothing);
        }
    });
    if (sent) {
        ++calls_;
    } else if (!connection_.isOpen()) {
        stopped_ = CallsStopped::disconnected;
    }
}

void BoundedCalls::waitForAnswer() {
    const SteadyTime end = started_ + limits_.total;
    const SteadyTime silentAt = lastAnswer_ + limits_.silence;
    const bool answered = window_.wait(std::min(end, silentAt));
    if (stopped_) {
        return;
    }
    if (isTooMuch()) {
        const bool isLate = std::chrono::steady_clock::now() >= end;
        stopped_ = isLate ? CallsStopped::tooSlow : CallsStopped::tooMuch;
    } else if (answered) {
        const bool done = window_.isIdle() && queue_.empty();
        if (!done && std::chrono::steady_clock::now() >= end) {
            stopped_ = CallsStopped::tooSlow;
        }
    } else if (!connection_.isOpen()) {
        stopped_ = CallsStopped::disconnected;
    } else {
        stopped_ = silentAt <= end ? CallsStopped::silent : CallsStopped::tooSlow;
    }
}

bool BoundedCalls::isTooMuch() const {
    return budget_.isExhausted() || connection_.wasOverwhelmed() ||
           connection_.received() - receivedBefore_ > limits_.received;
}

bool saysApplicationIsGone(std::string_view errorName) {
    return errorName == SD_BUS_ERROR_SERVICE_UNKNOWN || errorName == SD_BUS_ERROR_NAME_HAS_NO_OWNER ||
           errorName == SD_BUS_ERROR_NO_REPLY || errorName == SD_BUS_ERROR_DISCONNECTED;
}

} // namespace tovrel
