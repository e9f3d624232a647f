#include <cstdlib>

#include "app/desktop/OpenDesktop.h"

namespace tovrel {

std::shared_ptr<Desktop> openDesktop() {
    return nullptr;
}

std::filesystem::path configurationDirectory() {
    const char* home = std::getenv("HOME"); // NOLINT(concurrency-mt-unsafe): nobody changes it
    return std::filesystem::path(home == nullptr ? "" : home) / ".config";
}

} // namespace tovrel
