#include "windows/WindowSystem.h"

#include <utility>

#include "windows/X11.h"

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
        .takeFocus =
            [x11](QWindow& window) {
                window.requestActivate();
                // Qt goes on asking a window manager that was killed.
                if (!x11.hasWindowManager()) {
                    x11.setInputFocus(windowOf(window));
                }
            },
        .activate =
            [x11, userTime = std::move(userTime)](QWindow& window) {
                if (x11.hasWindowManager()) {
                    x11.askToActivate(windowOf(window), userTime());
                } else {
                    x11.setInputFocus(windowOf(window));
                }
            },
        .rememberFocus = [x11]() -> std::function<void()> {
            const xcb_window_t focused = x11.inputFocus();
            // Where the manager keeps the focus to itself there is no application to give it back to.
            const auto active = x11.activeWindow();
            if (active && !x11.isWithin(focused, *active)) {
                return [] {};
            }
            return [x11, focused] { x11.setInputFocus(focused); };
        },
        .isManaged = [x11] { return x11.hasWindowManager(); },
        .isFirstButtonDown = [x11] { return x11.isFirstButtonDown(); },
        .endMove = [x11](QWindow& window) { x11.askToEndMove(windowOf(window)); },
        .activeWindowFrame = [x11] { return x11.activeWindowFrame(); },
    };
}

} // namespace tovrel
