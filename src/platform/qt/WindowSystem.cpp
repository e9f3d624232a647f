#include "platform/qt/WindowSystem.h"

#include <QGuiApplication>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <xcb/xcb.h>

namespace tovrel {
namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); } // NOLINT(cppcoreguidelines-no-malloc)
};

template <typename Reply>
using ReplyPointer = std::unique_ptr<Reply, Free>;

template <typename Reply>
ReplyPointer<Reply> owned(Reply* reply) {
    return ReplyPointer<Reply>(reply);
}

/// Questions to the X server over Qt's own connection.
class X11 {
  public:
    explicit X11(xcb_connection_t* connection)
        : connection_(connection), root_(xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root) {}

    [[nodiscard]] bool isComposited() const {
        // Every compositing manager owns this selection (EWMH 1.5).
        const auto reply = owned(xcb_get_selection_owner_reply(
            connection_, xcb_get_selection_owner(connection_, atom("_NET_WM_CM_S0")), nullptr));
        return reply && reply->owner != XCB_NONE;
    }

    [[nodiscard]] xcb_window_t inputFocus() const {
        const auto reply =
            owned(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
        return reply ? reply->focus : XCB_NONE;
    }

    void setInputFocus(xcb_window_t window) const {
        xcb_set_input_focus(connection_, XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
        xcb_flush(connection_);
    }

    [[nodiscard]] bool isWithin(xcb_window_t window, xcb_window_t ancestor) const {
        for (int level = 0; level < 16 && window > XCB_INPUT_FOCUS_POINTER_ROOT && window != root_; ++level) {
            if (window == ancestor) {
                return true;
            }
            const auto reply =
                owned(xcb_query_tree_reply(connection_, xcb_query_tree(connection_, window), nullptr));
            window = reply ? reply->parent : XCB_NONE;
        }
        return false;
    }

    [[nodiscard]] bool hasWindowManager() const {
        return windowProperty("_NET_SUPPORTING_WM_CHECK") != XCB_NONE;
    }

    [[nodiscard]] std::optional<QRect> activeWindowFrame() const {
        const xcb_window_t window = windowProperty("_NET_ACTIVE_WINDOW");
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

    void askToActivate(xcb_window_t window, std::uint32_t time) const {
        xcb_client_message_event_t event{};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = window;
        event.type = atom("_NET_ACTIVE_WINDOW");
        event.data.data32[0] = 2; // on behalf of the user (EWMH 1.5: source indication of a pager)
        event.data.data32[1] = time;
        xcb_send_event(connection_, 0, root_,
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char*>(&event));
        xcb_flush(connection_);
    }

  private:
    [[nodiscard]] xcb_atom_t atom(std::string_view name) const {
        const auto cookie =
            xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
        const auto reply = owned(xcb_intern_atom_reply(connection_, cookie, nullptr));
        return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    }

    [[nodiscard]] xcb_window_t windowProperty(std::string_view name) const {
        const auto cookie = xcb_get_property(connection_, 0, root_, atom(name), XCB_ATOM_WINDOW, 0, 1);
        const auto reply = owned(xcb_get_property_reply(connection_, cookie, nullptr));
        if (!reply || reply->format != 32 || xcb_get_property_value_length(reply.get()) < 4) {
            return XCB_NONE;
        }
        return *static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
    }

    xcb_connection_t* connection_;
    xcb_window_t root_;
};

xcb_window_t windowOf(const QWindow& window) {
    // Asking a window that has none would make one.
    return window.handle() != nullptr ? static_cast<xcb_window_t>(window.winId()) : XCB_NONE;
}

} // namespace

WindowSystem makeWindowSystem(std::function<std::uint32_t()> userTime) {
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (native == nullptr) {
        return {};
    }
    const X11 x11(native->connection());
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
