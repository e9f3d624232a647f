#include "app/desktop/X11Display.h"

#include <utility>

#include "platform/x11/hotkeys/X11HotKeyCenter.h"
#include "platform/x11/keyboard/X11KeyEventPoster.h"
#include "platform/x11/windows/X11WindowSystem.h"

namespace tovrel {

std::optional<std::string> X11Display::problem() const {
    return windows_->isAvailable() ? std::nullopt : std::optional(absence_);
}

std::function<std::optional<std::string>()> X11Display::accessibilityBusAddress() {
    return [windows = windows_] { return windows->accessibilityBusAddress(); };
}

ResidentSeams X11Display::makeResidentSeams(MainQueue& queue, std::function<KeyDestination()> keyDestination,
                                            const ToolkitConnection& toolkit) {
    auto hotKeys = std::make_unique<X11HotKeyCenter>(queue, std::move(keyDestination));
    EventSource& activations = windows_->activationEvents();
    ResidentSeams seams;
    seams.events = {{.source = &activations}, {.source = hotKeys.get(), .earlier = &activations}};
    if (toolkit.kind == ToolkitConnection::Kind::x11) {
        seams.windowSystem =
            std::make_unique<X11WindowSystem>(static_cast<xcb_connection_t*>(toolkit.handle),
                                              [center = hotKeys.get()] { return center->lastPressTime(); });
    }
    seams.hotKeys = std::move(hotKeys);
    seams.keyPoster = std::make_unique<X11KeyEventPoster>();
    return seams;
}

} // namespace tovrel
