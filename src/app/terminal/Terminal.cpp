#include "app/terminal/Terminal.h"

#include <cstdlib>
#include <string_view>
#include <unistd.h>

#include <sys/ioctl.h>

namespace tovrel {

OutputStyle outputStyleOf(int fileDescriptor) {
    OutputStyle style;
    if (isatty(fileDescriptor) == 0) {
        return style;
    }
    style.isTerminal = true;
    const char* terminal = std::getenv("TERM"); // NOLINT(concurrency-mt-unsafe): one thread
    const bool isDumb = terminal == nullptr || std::string_view(terminal) == "dumb";
    style.hasColour = !isDumb && std::getenv("NO_COLOR") == nullptr; // NOLINT(concurrency-mt-unsafe)
    winsize size{};
    if (ioctl(fileDescriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) {
        style.width = size.ws_col;
    }
    return style;
}

} // namespace tovrel
