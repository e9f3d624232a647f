#include "windows/X11.h"

#include <QGuiApplication>
#include <algorithm>
#include <cstdlib>
#include <memory>

namespace tovrel {
namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); } // NOLINT: xcb allocates its replies so
};

template <typename Reply>
std::unique_ptr<Reply, Free> owned(Reply* reply) {
    return std::unique_ptr<Reply, Free>(reply);
}

} // namespace

std::optional<X11> X11::ofQt() {
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return native != nullptr ? std::optional(X11(native->connection())) : std::nullopt;
}

X11::X11(xcb_connection_t* connection)
    : connection_(connection), root_(xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root),
      atoms_{.supportingCheck = atom("_NET_SUPPORTING_WM_CHECK"),
             .activeWindow = atom("_NET_ACTIVE_WINDOW"),
             .moveResize = atom("_NET_WM_MOVERESIZE")} {}

bool X11::isComposited() const {
    return hasOwner("_NET_WM_CM_S0"); // every compositing manager owns it (EWMH 1.5)
}

bool X11::hasWindowManager() const {
    const xcb_window_t announced = windowProperty(root_, atoms_.supportingCheck);
    return announced != XCB_NONE && windowProperty(announced, atoms_.supportingCheck) == announced;
}

bool X11::hasSystemTray() const {
    return hasOwner("_NET_SYSTEM_TRAY_S0"); // System Tray Protocol Specification of freedesktop.org
}

xcb_window_t X11::inputFocus() const {
    const auto reply =
        owned(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
    return reply ? reply->focus : XCB_NONE;
}

void X11::setInputFocus(xcb_window_t window) const {
    // The error is taken here: Qt would write it to standard error.
    const auto request =
        xcb_set_input_focus_checked(connection_, XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    owned(xcb_request_check(connection_, request));
}

bool X11::isFirstButtonDown() const {
    const auto reply =
        owned(xcb_query_pointer_reply(connection_, xcb_query_pointer(connection_, root_), nullptr));
    return reply && (reply->mask & XCB_BUTTON_MASK_1) != 0;
}

bool X11::isWithin(xcb_window_t window, xcb_window_t ancestor) const {
    // The focus may also be nowhere or follow the pointer; those two values are no windows.
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

std::optional<xcb_window_t> X11::activeWindow() const {
    const auto activeCookie =
        xcb_get_property(connection_, 0, root_, atoms_.activeWindow, XCB_ATOM_WINDOW, 0, 1);
    const bool isManaged = hasWindowManager();
    const xcb_window_t active = windowIn(activeCookie);
    return isManaged ? std::optional(active) : std::nullopt;
}

std::optional<QRect> X11::activeWindowFrame() const {
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
    return QRect(origin->dst_x, origin->dst_y, geometry->width, geometry->height);
}

void X11::askToActivate(xcb_window_t window, std::uint32_t time) const {
    constexpr std::uint32_t onOrderOfTheUser = 2; // EWMH 1.5, source indication
    sendToWindowManager(window, atoms_.activeWindow, {onOrderOfTheUser, time});
}

void X11::askToEndMove(xcb_window_t window) const {
    constexpr std::uint32_t cancel = 11; // EWMH 1.5, _NET_WM_MOVERESIZE_CANCEL
    sendToWindowManager(window, atoms_.moveResize, {0, 0, cancel});
}

void X11::sendToWindowManager(xcb_window_t window, xcb_atom_t message,
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

xcb_atom_t X11::atom(std::string_view name) const {
    const auto cookie = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const auto reply = owned(xcb_intern_atom_reply(connection_, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

bool X11::hasOwner(std::string_view selection) const {
    const auto cookie = xcb_get_selection_owner(connection_, atom(selection));
    const auto reply = owned(xcb_get_selection_owner_reply(connection_, cookie, nullptr));
    return reply && reply->owner != XCB_NONE;
}

xcb_window_t X11::windowProperty(xcb_window_t window, xcb_atom_t name) const {
    return windowIn(xcb_get_property(connection_, 0, window, name, XCB_ATOM_WINDOW, 0, 1));
}

xcb_window_t X11::windowIn(xcb_get_property_cookie_t cookie) const {
    xcb_generic_error_t* error = nullptr;
    const auto reply = owned(xcb_get_property_reply(connection_, cookie, &error));
    owned(error); // The window may be gone by now.
    if (!reply || reply->format != 32 || xcb_get_property_value_length(reply.get()) < 4) {
        return XCB_NONE;
    }
    return *static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
}

} // namespace tovrel
