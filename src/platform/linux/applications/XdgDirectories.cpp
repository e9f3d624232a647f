#include "platform/linux/applications/XdgDirectories.h"

#include <array>
#include <cstdlib>
#include <optional>
#include <pwd.h>
#include <sstream>
#include <string>
#include <unistd.h>

namespace tovrel::xdg {
namespace {

std::optional<std::filesystem::path> absolutePathFrom(const char* variable) {
    const char* value = std::getenv(variable); // NOLINT(concurrency-mt-unsafe): one thread
    if (value == nullptr || !std::filesystem::path(value).is_absolute()) {
        return std::nullopt;
    }
    return value;
}

std::filesystem::path home() {
    if (const auto fromEnvironment = absolutePathFrom("HOME")) {
        return *fromEnvironment;
    }
    passwd entry{};
    passwd* found = nullptr;
    std::array<char, 4096> buffer{};
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found != nullptr) {
        return entry.pw_dir;
    }
    return "/";
}

} // namespace

std::filesystem::path configHome() {
    return absolutePathFrom("XDG_CONFIG_HOME").value_or(home() / ".config");
}

std::vector<std::filesystem::path> dataDirectories() {
    std::vector<std::filesystem::path> directories{
        absolutePathFrom("XDG_DATA_HOME").value_or(home() / ".local/share")};
    const char* listed = std::getenv("XDG_DATA_DIRS"); // NOLINT(concurrency-mt-unsafe): one thread
    std::istringstream list(listed != nullptr && *listed != '\0' ? listed : "/usr/local/share:/usr/share");
    for (std::string directory; std::getline(list, directory, ':');) {
        if (std::filesystem::path(directory).is_absolute()) {
            directories.emplace_back(directory);
        }
    }
    return directories;
}

} // namespace tovrel::xdg
