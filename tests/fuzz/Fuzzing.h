#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "support/Fatal.h"

/// The common part of the fuzzers. Each defines LLVMFuzzerTestOneInput, which is called for every input.
namespace tovrel::fuzzing {

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// A promise of the program that must hold for every input.
inline void require(bool holds, const char* promise) {
    if (!holds) {
        fatal(promise);
    }
}

} // namespace tovrel::fuzzing
