#include "platform/x11/windows/X11ActivationWatch.h"

#include <utility>

#include "platform/x11/server/XcbOwned.h"

namespace tovrel {
namespace {

constexpr const char* activeWindowName = "_NET_ACTIVE_WINDOW";

} // namespace

X11ActivationWatch::X11ActivationWatch(Observer observer, const char* display)
    : connection_(display), activeWindowProperty_(connection_.atom(activeWindowName)),
      observer_(std::move(observer)) {
    connection_.watchRootProperties(true);
    active_ = activeWindow();
}

void X11ActivationWatch::dispatch() {
    // Reading the property may bring further events into memory, so the loop goes on until there are none.
    while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(connection_.handle())}) {
        if ((event->response_type & 0x7FU) != XCB_PROPERTY_NOTIFY ||
            reinterpret_cast<const xcb_property_notify_event_t&>(*event).atom != activeWindowProperty_) {
            continue;
        }
        const xcb_window_t active = activeWindow();
        if (active != 0 && std::exchange(active_, active) != active) {
            observer_(active);
        }
    }
}

xcb_window_t X11ActivationWatch::activeWindow() {
    const auto active = connection_.numbers(connection_.root(), activeWindowName);
    return active.empty() ? 0 : active.front();
}

} // namespace tovrel
