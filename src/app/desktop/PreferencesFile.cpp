#include "app/desktop/PreferencesFile.h"

#include <cstdlib>

#include "app/desktop/OpenDesktop.h"

namespace tovrel {

std::filesystem::path preferencesFile(const std::optional<std::filesystem::path>& named) {
    if (named) {
        return *named;
    }
    const char* fromEnvironment =
        std::getenv("TOVREL_PREFERENCES"); // NOLINT(concurrency-mt-unsafe): one thread
    if (fromEnvironment != nullptr && *fromEnvironment != '\0') {
        return fromEnvironment;
    }
    return configurationDirectory() / "tovrel" / "preferences.sqlite";
}

} // namespace tovrel
