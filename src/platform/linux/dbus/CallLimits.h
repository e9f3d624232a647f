#pragma once

#include <chrono>
#include <cstddef>

namespace tovrel {

/// What many calls to one application may cost together.
struct CallLimits {
    std::chrono::milliseconds silence; ///< Without any answer for this long the application counts as hung.
    std::chrono::milliseconds total;   ///< For all of them, however steadily the application answers.
    std::size_t callsInFlight;         ///< Calls under way at a time.
    std::size_t received;              ///< Bytes that are received, whatever they are.
    std::size_t values;     ///< Values in the answers that are looked at, if only to come to the next.
    std::size_t textBytes;  ///< Bytes of text that are kept.
    std::size_t valueBytes; ///< Bytes of values that are kept to be compared and sent back.
};

} // namespace tovrel
