#include "support/Fatal.h"

#include <cstdlib>
#include <iostream>

namespace tovrel {

void fatal(std::string_view message) {
    std::cerr << "tovrel: fatal: " << message
              << std::endl; // NOLINT(performance-avoid-endl): flushed before abort
    std::abort();
}

} // namespace tovrel
