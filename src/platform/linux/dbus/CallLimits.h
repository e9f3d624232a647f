#pragma once

#include <chrono>
#include <cstddef>

namespace tovrel {

/// Limits for many calls to one application together.
struct CallLimits {
    std::chrono::milliseconds silence; ///< The application counts as hung after this long without any answer.
    std::chrono::milliseconds total;   ///< For all calls, however steadily the application answers.
    std::size_t callsInFlight;         ///< Calls under way at a time.
    std::size_t received;              ///< Bytes that are received, whatever they mean.
    std::size_t values;                ///< Values in the answers that are looked at, even to skip them.
    std::size_t textBytes;             ///< Bytes of text that are kept.
    std::size_t valueBytes;            ///< Bytes of values that are kept to be compared and sent back.
};

} // namespace tovrel
