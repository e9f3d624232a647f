#include "app/seat/ResidentSeat.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace tovrel {
namespace {

std::string environment(const char* name) {
    const char* value = std::getenv(name); // NOLINT(concurrency-mt-unsafe): nobody changes it
    return value == nullptr ? "" : value;
}

bool isPlain(char character) {
    constexpr std::string_view others = "-_.";
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z') || others.find(character) != std::string_view::npos;
}

} // namespace

std::string displayName() {
    std::string name = environment("DISPLAY");
    const std::size_t colon = name.rfind(':');
    if (colon != std::string::npos) {
        name.resize(std::min(name.size(), name.find('.', colon)));
    }
    return name;
}

std::optional<ResidentSeat> ResidentSeat::ofEnvironment() {
    const std::filesystem::path runtimeDirectory = environment("XDG_RUNTIME_DIR");
    std::error_code error;
    if (!runtimeDirectory.is_absolute() || !std::filesystem::is_directory(runtimeDirectory, error)) {
        return std::nullopt;
    }
    std::string name = displayName();
    std::replace_if(
        name.begin(), name.end(), [](char each) { return !isPlain(each); }, '_');
    const std::filesystem::path directory = runtimeDirectory / "tovrel";
    return ResidentSeat{directory / (name + ".lock"), directory / (name + ".socket")};
}

std::string ResidentSeat::address() const {
    // All other characters are escaped in an address (D-Bus Specification, Server Addresses).
    constexpr std::string_view digits = "0123456789abcdef";
    std::string escaped = "unix:path=";
    for (const char each : socket.native()) {
        if (isPlain(each) || each == '/') {
            escaped += each;
        } else {
            const auto byte = static_cast<unsigned char>(each);
            escaped += {'%', digits[byte >> 4U], digits[byte & 0xFU]};
        }
    }
    return escaped;
}

} // namespace tovrel
