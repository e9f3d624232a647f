#pragma once

#include <cstddef>
#include <fstream>
#include <unistd.h>

#include <sys/resource.h>

namespace tovrel {

/// The address sanitizer needs terabytes of address space and keeps much more memory than is requested, so
/// memory cannot be limited with it. It does not support the fork of a process with threads either.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool hasAddressSanitizer = true;
#elif defined(__has_feature)
inline constexpr bool hasAddressSanitizer = __has_feature(address_sanitizer);
#else
inline constexpr bool hasAddressSanitizer = false;
#endif

/// Lets this process take `moreBytes` more address space than it has now; a larger allocation fails.
inline void limitMemoryTo(std::size_t moreBytes) {
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const rlim_t limit = pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) + moreBytes;
    const rlimit limits{limit, limit};
    setrlimit(RLIMIT_AS, &limits);
}

} // namespace tovrel
