#pragma once

#include <chrono>
#include <functional>
#include <optional>

namespace tovrel {

/// How long a program waits for locks that other processes hold: a stated time in all, at however many locks,
/// statements and operations they are met.
class LockPatience {
  public:
    /// So long may be waited in each period. A period starts with its first wait; one of no length, with each
    /// operation.
    struct Terms {
        std::chrono::nanoseconds amount;
        std::chrono::nanoseconds period;
    };

    /// The clock it goes by, and how it waits.
    struct Time {
        std::function<std::chrono::steady_clock::time_point()> now;
        std::function<void(std::chrono::nanoseconds)> sleep;

        [[nodiscard]] static Time real();
    };

    explicit LockPatience(const Terms& terms, Time time = Time::real());

    /// To be called where an operation begins, which then waits out of what the period has left.
    void beginOperation();

    /// Waits about a millisecond and returns true; false, without waiting, when nothing is left.
    [[nodiscard]] bool waitAMoment();

  private:
    Terms terms_;
    Time time_;
    std::optional<std::chrono::steady_clock::time_point> firstWait_; ///< In this period.
    std::chrono::nanoseconds waited_{};                              ///< In this period.
};

} // namespace tovrel
