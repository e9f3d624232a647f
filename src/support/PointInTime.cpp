#include "support/PointInTime.h"

#include <chrono>

namespace tovrel {

PointInTime currentTime() {
    using namespace std::chrono;
    // The reference date is 978,307,200 s after the Unix epoch: 31 years, 8 of them leap years.
    constexpr double referenceDateSinceUnixEpoch = 978307200.0;
    const duration<double> sinceUnixEpoch = system_clock::now().time_since_epoch();
    return {sinceUnixEpoch.count() - referenceDateSinceUnixEpoch};
}

} // namespace tovrel
