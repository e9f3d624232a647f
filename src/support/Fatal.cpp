#include "support/Fatal.h"

#include <cstdlib>
#include <iostream>
#include <string>

namespace tovrel {

void fatal(std::string_view message) {
    std::cerr << "tovrel: fatal: " << message
              << std::endl; // NOLINT(performance-avoid-endl): flushed before abort
    std::abort();
}

void noSuchValue(std::string_view enumeration) {
    fatal("a value that " + std::string(enumeration) + " does not have");
}

} // namespace tovrel
