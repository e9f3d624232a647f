#include "platform/x11/server/X11Connection.h"

#include <algorithm>
#include <cstring>
#include <poll.h>

#include "platform/x11/server/X11Properties.h"
#include "platform/x11/server/XcbOwned.h"

namespace tovrel {
namespace {

constexpr const char* supportingCheck = "_NET_SUPPORTING_WM_CHECK";

} // namespace

X11Connection::X11Connection(const char* display) {
    int screen = 0;
    connection_.reset(xcb_connect(display, &screen));
    if (!isOpen()) {
        return;
    }
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection_.get()));
    for (; screens.rem > 0; xcb_screen_next(&screens), --screen) {
        if (screen == 0) {
            root_ = screens.data->root;
            break;
        }
    }
}

bool X11Connection::isOpen() const {
    return connection_ && xcb_connection_has_error(connection_.get()) == 0;
}

xcb_atom_t X11Connection::atom(const char* name) {
    const auto known = atoms_.find(name);
    if (known != atoms_.end()) {
        return known->second;
    }
    const auto cookie =
        xcb_intern_atom(connection_.get(), 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const XcbOwned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_.get(), cookie, nullptr));
    if (!reply) {
        return XCB_ATOM_NONE;
    }
    return atoms_.emplace(name, reply->atom).first->second;
}

std::optional<std::string> X11Connection::bytes(xcb_window_t window, const char* name) {
    return X11Properties(*this, window, {name}).bytes(name);
}

std::vector<std::uint32_t> X11Connection::numbers(xcb_window_t window, const char* name) {
    return X11Properties(*this, window, {name}).numbers(name);
}

bool X11Connection::hasWindowManager() {
    return isManager(numbers(root_, supportingCheck));
}

std::optional<xcb_window_t> X11Connection::activeWindow() {
    constexpr const char* activeWindowName = "_NET_ACTIVE_WINDOW";
    const X11Properties properties(*this, root_, {activeWindowName, supportingCheck});
    const auto active = properties.numbers(activeWindowName);
    return !active.empty() && isManager(properties.numbers(supportingCheck)) ? std::optional(active.front())
                                                                             : std::nullopt;
}

bool X11Connection::isManager(const std::vector<std::uint32_t>& announced) {
    return !announced.empty() && numbers(announced.front(), supportingCheck) == announced;
}

void X11Connection::watchRootProperties(bool isWanted) {
    if (isOpen()) {
        const std::uint32_t mask = isWanted ? std::uint32_t{XCB_EVENT_MASK_PROPERTY_CHANGE} : 0;
        xcb_change_window_attributes(connection_.get(), root_, XCB_CW_EVENT_MASK, &mask);
        xcb_flush(connection_.get());
    }
}

bool X11Connection::waitForPropertyChange(std::chrono::steady_clock::time_point deadline) {
    bool hasChanged = false;
    while (isOpen() && !hasChanged) {
        while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(connection_.get())}) {
            hasChanged = hasChanged || (event->response_type & 0x7FU) == XCB_PROPERTY_NOTIFY;
        }
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (hasChanged || left.count() <= 0) {
            break;
        }
        pollfd readable{xcb_get_file_descriptor(connection_.get()), POLLIN, 0};
        poll(&readable, 1, static_cast<int>(left.count()));
    }
    return hasChanged;
}

bool X11Connection::sendToWindowManager(xcb_window_t window, const char* message,
                                        const std::vector<std::uint32_t>& data) {
    if (!isOpen()) {
        return false;
    }
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(message);
    std::copy_n(data.begin(), std::min<std::size_t>(data.size(), 5), &event.data.data32[0]);
    constexpr std::uint32_t toWindowManager =
        XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    const auto cookie = xcb_send_event_checked(connection_.get(), 0, root_, toWindowManager,
                                               reinterpret_cast<const char*>(&event));
    const XcbOwned<xcb_generic_error_t> error(xcb_request_check(connection_.get(), cookie));
    return !error && isOpen();
}

} // namespace tovrel
