#include <cstdlib>

#include "app/desktop/LinuxDesktop.h"
#include "app/desktop/OpenDesktop.h"
#include "app/desktop/X11Display.h"
#include "platform/linux/applications/XdgDirectories.h"

namespace tovrel {
namespace {

bool isWaylandSession() {
    const char* display = std::getenv("WAYLAND_DISPLAY"); // NOLINT(concurrency-mt-unsafe): nobody changes it
    return display != nullptr && *display != '\0';
}

} // namespace

std::shared_ptr<Desktop> openDesktop() {
    return std::make_shared<LinuxDesktop>(std::make_unique<X11Display>(
        isWaylandSession() ? "Wayland is not supported yet, and there is no X display"
                           : "there is no X display"));
}

std::filesystem::path configurationDirectory() {
    return xdg::configHome();
}

} // namespace tovrel
