#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/linux/dbus/CallLimits.h"
#include "platform/linux/dbus/DBus.h"

namespace tovrel {

/// What is left of the limits while answers are decoded. Once something has run out nothing more is looked
/// at, so that what was decoded until then is all there is.
class AnswerBudget {
  public:
    /// `started` is when the work began, which `limits.total` counts from.
    AnswerBudget(const CallLimits& limits, SteadyTime started)
        : limits_(limits), end_(started + limits.total) {}

    /// One more value is looked at. False when that is one too many, or the time is over.
    bool look();

    /// The text, which is kept from now on. Empty when it is longer than `limit`, which then nothing real is,
    /// or the room for texts has run out.
    std::string kept(std::string_view text, std::size_t limit = longestName);

    /// The text, of which the caller keeps a copy from now on. Empty when the room for texts has run out.
    std::string_view keptInFull(std::string_view text);

    /// So many bytes of a value are kept from now on; false when there is no room for them.
    bool keepsValue(std::size_t bytes);

    [[nodiscard]] bool isExhausted() const { return isExhausted_; }

    /// No name of an action and no path of an object is longer.
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
