#include "platform/x11/windows/X11WindowSystem.h"

#include <algorithm>
#include <utility>

#include "platform/x11/server/XcbOwned.h"

namespace tovrel {
namespace {

template <typename Reply>
XcbOwned<Reply> owned(Reply* reply) {
    return XcbOwned<Reply>(reply);
}

xcb_window_t xcbWindow(OwnWindow window) {
    return static_cast<xcb_window_t>(window);
}

/// Sets the input focus; a window that is gone or not visible does not get it.
void setInputFocus(xcb_connection_t* connection, xcb_window_t window) {
    // The error is taken here, because the toolkit would write it to standard error.
    const auto request =
        xcb_set_input_focus_checked(connection, XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    owned(xcb_request_check(connection, request));
}

} // namespace

X11WindowSystem::X11WindowSystem(xcb_connection_t* connection, std::function<std::uint32_t()> userTime)
    : connection_(connection), userTime_(std::move(userTime)),
      root_(xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root),
      atoms_{.supportingCheck = atom("_NET_SUPPORTING_WM_CHECK"),
             .activeWindow = atom("_NET_ACTIVE_WINDOW"),
             .moveResize = atom("_NET_WM_MOVERESIZE")} {}

bool X11WindowSystem::isComposited() const {
    return hasOwner("_NET_WM_CM_S0");
}

bool X11WindowSystem::hasInputFocus(OwnWindow window) const {
    return window != 0 && isWithin(inputFocus(), xcbWindow(window));
}

void X11WindowSystem::giveFocus(OwnWindow window) {
    if (!isManaged()) {
        setInputFocus(connection_, xcbWindow(window));
    }
}

void X11WindowSystem::activate(OwnWindow window) {
    constexpr std::uint32_t onOrderOfTheUser = 2; // EWMH 1.5, source indication
    if (isManaged()) {
        sendToWindowManager(xcbWindow(window), atoms_.activeWindow, {onOrderOfTheUser, userTime_()});
    } else {
        setInputFocus(connection_, xcbWindow(window));
    }
}

std::function<void()> X11WindowSystem::rememberFocus() const {
    const xcb_window_t focused = inputFocus();
    const auto active = activeWindow();
    if (active && !isWithin(focused, *active)) {
        return [] {};
    }
    return [connection = connection_, focused] { setInputFocus(connection, focused); };
}

bool X11WindowSystem::isManaged() const {
    const xcb_window_t announced = windowProperty(root_, atoms_.supportingCheck);
    return announced != XCB_NONE && windowProperty(announced, atoms_.supportingCheck) == announced;
}

bool X11WindowSystem::isFirstButtonDown() const {
    const auto reply =
        owned(xcb_query_pointer_reply(connection_, xcb_query_pointer(connection_, root_), nullptr));
    return reply && (reply->mask & XCB_BUTTON_MASK_1) != 0;
}

void X11WindowSystem::endMove(OwnWindow window) {
    constexpr std::uint32_t cancel = 11; // EWMH 1.5, _NET_WM_MOVERESIZE_CANCEL
    sendToWindowManager(xcbWindow(window), atoms_.moveResize, {0, 0, cancel});
}

std::optional<Rect> X11WindowSystem::activeWindowFrame() const {
    const xcb_window_t window = activeWindow().value_or(XCB_NONE);
    if (window == XCB_NONE) {
        return std::nullopt;
    }
    const auto geometryCookie = xcb_get_geometry(connection_, window);
    const auto originCookie = xcb_translate_coordinates(connection_, window, root_, 0, 0);
    const auto geometry = owned(xcb_get_geometry_reply(connection_, geometryCookie, nullptr));
    const auto origin = owned(xcb_translate_coordinates_reply(connection_, originCookie, nullptr));
    if (!geometry || !origin) {
        return std::nullopt;
    }
    return Rect{{static_cast<double>(origin->dst_x), static_cast<double>(origin->dst_y)},
                {static_cast<double>(geometry->width), static_cast<double>(geometry->height)}};
}

bool X11WindowSystem::hasStatusBar() const {
    return hasOwner("_NET_SYSTEM_TRAY_S0");
}

bool X11WindowSystem::mayAnnounceStatusBar(std::string_view type, const void* event) const {
    return type == "xcb_generic_event_t" &&
           (static_cast<const xcb_generic_event_t*>(event)->response_type & 0x7FU) == XCB_CLIENT_MESSAGE;
}

xcb_window_t X11WindowSystem::inputFocus() const {
    const auto reply =
        owned(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
    return reply ? reply->focus : xcb_window_t{XCB_NONE};
}

bool X11WindowSystem::isWithin(xcb_window_t window, xcb_window_t ancestor) const {
    // The focus may also be nowhere or follow the pointer; these two values are not windows.
    constexpr int deepest = 16;
    for (int level = 0; level < deepest && window > XCB_INPUT_FOCUS_POINTER_ROOT && window != root_;
         ++level) {
        if (window == ancestor) {
            return true;
        }
        const auto reply =
            owned(xcb_query_tree_reply(connection_, xcb_query_tree(connection_, window), nullptr));
        window = reply ? reply->parent : XCB_NONE;
    }
    return false;
}

std::optional<xcb_window_t> X11WindowSystem::activeWindow() const {
    const auto activeCookie =
        xcb_get_property(connection_, 0, root_, atoms_.activeWindow, XCB_ATOM_WINDOW, 0, 1);
    const bool hasManager = isManaged();
    const xcb_window_t active = windowIn(activeCookie);
    return hasManager ? std::optional(active) : std::nullopt;
}

void X11WindowSystem::sendToWindowManager(xcb_window_t window, xcb_atom_t message,
                                          const std::array<std::uint32_t, 5>& data) const {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = message;
    std::copy(data.begin(), data.end(), &event.data.data32[0]);
    xcb_send_event(connection_, 0, root_,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(connection_);
}

xcb_atom_t X11WindowSystem::atom(std::string_view name) const {
    const auto cookie = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const auto reply = owned(xcb_intern_atom_reply(connection_, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

bool X11WindowSystem::hasOwner(std::string_view selection) const {
    const auto cookie = xcb_get_selection_owner(connection_, atom(selection));
    const auto reply = owned(xcb_get_selection_owner_reply(connection_, cookie, nullptr));
    return reply && reply->owner != XCB_NONE;
}

xcb_window_t X11WindowSystem::windowProperty(xcb_window_t window, xcb_atom_t name) const {
    return windowIn(xcb_get_property(connection_, 0, window, name, XCB_ATOM_WINDOW, 0, 1));
}

xcb_window_t X11WindowSystem::windowIn(xcb_get_property_cookie_t cookie) const {
    xcb_generic_error_t* error = nullptr;
    const auto reply = owned(xcb_get_property_reply(connection_, cookie, &error));
    owned(error); // The window may be gone by now.
    if (!reply || reply->format != 32 || xcb_get_property_value_length(reply.get()) < 4) {
        return XCB_NONE;
    }
    return *static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
}

} // namespace tovrel
