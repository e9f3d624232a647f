#include "platform/linux/menus/MenuObstacle.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

namespace tovrel {
namespace {

namespace fs = std::filesystem;

/// Reads a file of the kernel, whose size is not known beforehand.
std::string contents(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// The value of a variable in an environment whose entries end with NUL.
std::optional<std::string_view> variable(std::string_view environment, std::string_view name) {
    while (!environment.empty()) {
        const std::string_view entry = environment.substr(0, environment.find('\0'));
        if (entry.size() > name.size() && entry.starts_with(name) && entry[name.size()] == '=') {
            return entry.substr(name.size() + 1);
        }
        environment.remove_prefix(std::min(environment.size(), entry.size() + 1));
    }
    return std::nullopt;
}

bool isThere(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error);
}

/// Every program with a browser engine has the engine's pictures beside it.
bool isBrowserEngine(const fs::path& process) {
    std::error_code error;
    const fs::path program = fs::read_symlink(process / "exe", error);
    return !error &&
           isThere(process / "root" / program.parent_path().relative_path() / "chrome_100_percent.pak");
}

} // namespace

MenuObstacle menuObstacleOf(std::int32_t processIdentifier, const fs::path& proc) {
    const fs::path process = proc / std::to_string(processIdentifier);
    const std::string environment = contents(process / "environ");
    const std::string libraries = contents(process / "maps");
    const auto hasLibrary = [&](std::string_view name) { return libraries.find(name) != std::string::npos; };
    const bool isGtk2 = hasLibrary("/libgtk-x11-2.0.so");

    const bool isOff = variable(environment, "NO_AT_BRIDGE").value_or("0") != "0" ||
                       variable(environment, "GTK_A11Y") == "none";
    if (isOff && (isGtk2 || hasLibrary("/libgtk-3.so") || hasLibrary("/libgtk-4.so"))) {
        return MenuObstacle::switchedOff;
    }
    const bool isTold =
        contents(process / "cmdline").find("--force-renderer-accessibility") != std::string::npos;
    if (isBrowserEngine(process) && !isTold) {
        return MenuObstacle::browserEngine;
    }
    if (hasLibrary("/libjvm.so") && !hasLibrary("/libatk-wrapper.so")) {
        return MenuObstacle::java;
    }
    if (isGtk2 &&
        variable(environment, "GTK_MODULES").value_or("").find("atk-bridge") == std::string_view::npos) {
        return MenuObstacle::gtk2WithoutBridge;
    }
    const bool isSandboxed = isThere(process / "root" / ".flatpak-info") || variable(environment, "SNAP");
    return isSandboxed ? MenuObstacle::sandbox : MenuObstacle::none;
}

} // namespace tovrel
