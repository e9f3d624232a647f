#include "support/Uptime.h"

#include <ctime>

namespace tovrel {

Uptime currentUptime() {
#ifdef CLOCK_BOOTTIME
    std::timespec now{};
    if (clock_gettime(CLOCK_BOOTTIME, &now) == 0) {
        return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
    }
#endif
    return std::chrono::steady_clock::now().time_since_epoch();
}

} // namespace tovrel
