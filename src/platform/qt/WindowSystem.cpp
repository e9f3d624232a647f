#include "platform/qt/WindowSystem.h"

#include <utility>

#include "platform/qt/X11.h"

namespace tovrel {
namespace {

xcb_window_t windowOf(const QWindow& window) {
    // Asking a window that has none would make one.
    return window.handle() != nullptr ? static_cast<xcb_window_t>(window.winId()) : XCB_NONE;
}

} // namespace

WindowSystem makeWindowSystem(std::function<std::uint32_t()> userTime) {
    const std::optional<X11> connected = X11::ofQt();
    if (!connected) {
        return {};
    }
    const X11 x11 = *connected;
    return {
        .isComposited = [x11] { return x11.isComposited(); },
        .hasInputFocus =
            [x11](const QWindow& window) {
                return windowOf(window) != XCB_NONE && x11.isWithin(x11.inputFocus(), windowOf(window));
            },
        .activate = [x11, userTime = std::move(userTime)](
                        QWindow& window) { x11.askToActivate(windowOf(window), userTime()); },
        .rememberFocus = [x11]() -> std::function<void()> {
            if (x11.hasWindowManager()) {
                return [] {};
            }
            return [x11, window = x11.inputFocus()] { x11.setInputFocus(window); };
        },
        .activeWindowFrame = [x11] { return x11.activeWindowFrame(); },
    };
}

} // namespace tovrel
