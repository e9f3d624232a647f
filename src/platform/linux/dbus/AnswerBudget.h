#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/linux/dbus/CallLimits.h"
#include "platform/linux/dbus/DBus.h"

namespace tovrel {

/// The rest of the limits while answers are decoded. Once a limit is reached, decoding stops and the part
/// decoded so far is the result.
class AnswerBudget {
  public:
    /// `limits.total` counts from `started`, when the work began.
    AnswerBudget(const CallLimits& limits, SteadyTime started)
        : limits_(limits), end_(started + limits.total) {}

    /// Counts one more value that is looked at. Returns false when that is one too many or the time is over.
    bool look();

    /// Counts and returns a text that the caller keeps. Empty when the text is longer than `limit`, which no
    /// real one is, or the room for texts has run out.
    std::string kept(std::string_view text, std::size_t limit = longestName);

    /// Counts and returns a text of which the caller keeps a copy. Empty when the room for texts has run out.
    std::string_view keptInFull(std::string_view text);

    /// Counts bytes of a value that the caller keeps; returns false when there is no room for them.
    bool keepsValue(std::size_t bytes);

    [[nodiscard]] bool isExhausted() const { return isExhausted_; }

    /// The longest name of an action or path of an object.
    static constexpr std::size_t longestName = 512;

  private:
    CallLimits limits_;
    SteadyTime end_;
    std::size_t values_ = 0;
    std::size_t textBytes_ = 0;
    std::size_t valueBytes_ = 0;
    bool isExhausted_ = false;
};

} // namespace tovrel
