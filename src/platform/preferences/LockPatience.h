#pragma once

#include <chrono>
#include <functional>
#include <optional>

namespace tovrel {

/// Limits how long a program waits for locks that other processes hold: one total for all locks, statements
/// and operations.
class LockPatience {
  public:
    /// The longest wait in each period. A period starts with its first wait; a period of length zero starts
    /// with each operation.
    struct Terms {
        std::chrono::nanoseconds amount;
        std::chrono::nanoseconds period;
    };

    /// The clock, and the function that waits.
    struct Time {
        std::function<std::chrono::steady_clock::time_point()> now;
        std::function<void(std::chrono::nanoseconds)> sleep;

        [[nodiscard]] static Time real();
    };

    explicit LockPatience(const Terms& terms, Time time = Time::real());

    /// Must be called at the start of each operation, which may then use the rest of the period.
    void beginOperation();

    /// Waits about a millisecond and returns true; returns false without waiting when no time is left.
    [[nodiscard]] bool waitAMoment();

  private:
    Terms terms_;
    Time time_;
    std::optional<std::chrono::steady_clock::time_point> firstWait_; ///< In this period.
    std::chrono::nanoseconds waited_{};                              ///< In this period.
};

} // namespace tovrel
