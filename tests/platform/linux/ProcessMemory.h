#pragma once

#include <cstddef>
#include <fstream>
#include <unistd.h>

#include <sys/resource.h>

namespace tovrel {

/// Lets this process take so many bytes of address space more than it has now; an allocation beyond fails.
/// The address sanitizer needs terabytes of address space for itself, so that there nothing is limited: what
/// memory costs is asserted by the other builds.
inline void limitMemoryTo([[maybe_unused]] std::size_t moreBytes) {
#if !defined(__SANITIZE_ADDRESS__)
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
    return;
#endif
#endif
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const rlim_t limit = pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) + moreBytes;
    const rlimit limits{limit, limit};
    setrlimit(RLIMIT_AS, &limits);
#endif
}

} // namespace tovrel
