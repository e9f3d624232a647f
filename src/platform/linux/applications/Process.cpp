#include "platform/linux/applications/Process.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string_view>
#include <system_error>

namespace tovrel {
namespace {

std::filesystem::path processFolder(std::int32_t processIdentifier) {
    return std::filesystem::path("/proc") / std::to_string(processIdentifier);
}

std::string contents(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string lastPart(std::string_view path) {
    return std::string(path.substr(path.rfind('/') + 1));
}

} // namespace

std::optional<std::uint64_t> processStartTime(std::int32_t processIdentifier) {
    if (processIdentifier <= 0) {
        return std::nullopt;
    }
    const std::string line = contents(processFolder(processIdentifier) / "stat");
    // The name in the second field may have any characters, even blanks and brackets.
    const std::size_t nameEnd = line.rfind(')');
    if (nameEnd == std::string::npos) {
        return std::nullopt;
    }
    std::istringstream rest(line.substr(nameEnd + 1));
    std::string state;
    rest >> state;
    constexpr int fieldsBetween = 18;
    std::string skipped;
    for (int field = 0; field < fieldsBetween; ++field) {
        rest >> skipped;
    }
    std::uint64_t startTime = 0;
    const bool isRunning = state != "Z" && state != "X";
    return rest >> startTime && isRunning ? std::optional(startTime) : std::nullopt;
}

std::string processExecutable(std::int32_t processIdentifier) {
    std::error_code error;
    const std::string target =
        std::filesystem::read_symlink(processFolder(processIdentifier) / "exe", error).string();
    // The kernel marks a program file that was replaced while it runs, for instance by an update.
    constexpr std::string_view mark = " (deleted)";
    const std::string_view path = target;
    return lastPart(path.ends_with(mark) ? path.substr(0, path.size() - mark.size()) : path);
}

std::string processScript(std::int32_t processIdentifier) {
    const std::string line = contents(processFolder(processIdentifier) / "cmdline");
    const std::size_t firstEnd = line.find('\0');
    if (firstEnd == std::string::npos) {
        return "";
    }
    const std::string second = line.substr(firstEnd + 1).c_str();
    return second.starts_with('/') ? lastPart(second) : "";
}

} // namespace tovrel
