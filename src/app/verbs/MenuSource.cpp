#include "app/verbs/MenuSource.h"

#include <cerrno>
#include <fstream>
#include <string>
#include <system_error>

#include "app/terminal/Failure.h"
#include "platform/memory/MemoryAccessibility.h"
#include "platform/memory/Recording.h"

namespace tovrel {
namespace {

/// Reads the whole stream, but at most one byte more than a recording may have, because the stream may be
/// endless.
std::string readBounded(std::istream& stream) {
    constexpr std::size_t chunk = std::size_t{1} << 20U;
    std::string bytes;
    while (stream && bytes.size() <= recording::maximumBytes) {
        const std::size_t before = bytes.size();
        bytes.resize(std::min(before + chunk, recording::maximumBytes + 1));
        stream.read(bytes.data() + before, static_cast<std::streamsize>(bytes.size() - before));
        bytes.resize(before + static_cast<std::size_t>(stream.gcount()));
    }
    if (stream.bad()) {
        throw Failure("it cannot be read");
    }
    return bytes;
}

std::string readFile(const std::string& path) {
    errno = 0;
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw Failure(errno == 0 ? "it cannot be opened" : std::generic_category().message(errno));
    }
    return readBounded(file);
}

MenuSource recordedMenuSource(const std::string& path, std::istream& standardInput) {
    try {
        const recording::Recording recorded =
            recording::parse(path == "-" ? readBounded(standardInput) : readFile(path));
        auto accessibility = std::make_shared<MemoryAccessibility>();
        accessibility->setApplicationElement(recorded.application->processIdentifier(), recorded.root);
        return {.application = recorded.application,
                .accessibility = std::move(accessibility),
                .isRecording = true,
                .shortfall = nullptr,
                .bringToFront = nullptr};
    } catch (const std::runtime_error& reason) {
        const std::string name = path == "-" ? "on standard input" : "\"" + path + "\"";
        throw Failure("the recording " + name + " cannot be used: " + reason.what());
    }
}

} // namespace

MenuSource resolveMenuSource(const command_line::MenuSourceOptions& options, std::istream& standardInput) {
    return options.recordingFile ? recordedMenuSource(*options.recordingFile, standardInput)
                                 : liveMenuSource(options);
}

} // namespace tovrel
