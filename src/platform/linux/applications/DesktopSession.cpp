#include "platform/linux/applications/DesktopSession.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <system_error>
#include <unistd.h>

namespace tovrel {
namespace {

namespace fs = std::filesystem;

/// The parts between colons, without empty ones.
template <typename Part>
std::vector<Part> partsOf(const char* variable, const char* otherwise) {
    const char* value = std::getenv(variable); // NOLINT(concurrency-mt-unsafe): one thread
    std::istringstream list(value != nullptr ? value : otherwise);
    std::vector<Part> parts;
    for (std::string part; std::getline(list, part, ':');) {
        if (!part.empty()) {
            parts.emplace_back(part);
        }
    }
    return parts;
}

bool contains(const std::vector<std::string>& desktops, const std::string& desktop) {
    return std::find(desktops.begin(), desktops.end(), desktop) != desktops.end();
}

bool isForDesktop(const DesktopEntry& entry, const std::vector<std::string>& desktops) {
    for (const std::string& desktop : desktops) {
        if (entry.onlyShowIn && contains(*entry.onlyShowIn, desktop)) {
            return true;
        }
        if (contains(entry.notShowIn, desktop)) {
            return false;
        }
    }
    return !entry.onlyShowIn;
}

bool isProgram(const fs::path& file) {
    std::error_code error;
    return fs::is_regular_file(file, error) && access(file.c_str(), X_OK) == 0;
}

bool isInstalled(const fs::path& program, const std::vector<fs::path>& folders) {
    return program.is_absolute() ? isProgram(program)
                                 : std::any_of(folders.begin(), folders.end(), [&](const fs::path& folder) {
                                       return isProgram(folder / program);
                                   });
}

} // namespace

DesktopSession DesktopSession::ofEnvironment() {
    return {.desktops = partsOf<std::string>("XDG_CURRENT_DESKTOP", ""),
            .programFolders = partsOf<fs::path>("PATH", "/usr/local/bin:/usr/bin:/bin")};
}

bool isShownInMenus(const DesktopEntry& entry, const DesktopSession& session) {
    return !entry.hidden && !entry.noDisplay && isForDesktop(entry, session.desktops) &&
           (entry.tryExec.empty() || isInstalled(entry.tryExec, session.programFolders));
}

} // namespace tovrel
