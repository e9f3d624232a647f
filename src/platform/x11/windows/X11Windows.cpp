#include "platform/x11/windows/X11Windows.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <tuple>
#include <unistd.h>
#include <utility>

#include "platform/linux/dbus/DBus.h"
#include "platform/x11/server/X11Properties.h"
#include "platform/x11/server/XcbOwned.h"

namespace tovrel {
namespace {

/// The process identifier of a window counts only together with the machine it belongs to.
bool isThisMachine(const std::optional<std::string>& clientMachine) {
    std::array<char, 256> name{};
    if (!clientMachine || gethostname(name.data(), name.size() - 1) != 0) {
        return true;
    }
    // Some programs write the name with a domain, some with the final NUL.
    const std::string_view machine(clientMachine->c_str());
    const std::string_view own(name.data());
    return machine.substr(0, machine.find('.')) == own.substr(0, own.find('.'));
}

/// Two strings, each ended by a NUL.
std::pair<std::string, std::string> classParts(const std::string& property) {
    const std::size_t end = property.find('\0');
    if (end == std::string::npos) {
        return {property, ""};
    }
    return {property.substr(0, end), property.substr(end + 1).c_str()};
}

std::optional<std::int32_t> processIn(const X11Properties& properties) {
    const auto process = properties.numbers("_NET_WM_PID");
    return !process.empty() && isThisMachine(properties.bytes("WM_CLIENT_MACHINE"))
               ? std::optional(static_cast<std::int32_t>(process.front()))
               : std::nullopt;
}

std::optional<GtkMenuAddress> gtkMenusIn(const X11Properties& properties) {
    auto menuBar = properties.bytes("_GTK_MENUBAR_OBJECT_PATH");
    auto busName = properties.bytes("_GTK_UNIQUE_BUS_NAME");
    if (!menuBar || !busName || !isUniqueName(*busName)) {
        return std::nullopt;
    }
    return GtkMenuAddress{std::move(*busName), std::move(*menuBar),
                          properties.bytes("_GTK_APPLICATION_OBJECT_PATH").value_or(""),
                          properties.bytes("_GTK_WINDOW_OBJECT_PATH").value_or("")};
}

} // namespace

X11Windows::X11Windows(const char* display)
    : display_(display == nullptr ? std::nullopt : std::optional<std::string>(display)),
      connection_(display) {}

xcb_window_t X11Windows::activeWindowIdentifier() {
    if (const auto active = connection_.activeWindow()) {
        return *active;
    }
    return connection_.hasWindowManager() ? 0 : focusedWindow();
}

xcb_window_t X11Windows::focusedWindow() {
    xcb_connection_t* connection = connection_.handle();
    const XcbOwned<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    xcb_window_t window = focus ? focus->focus : xcb_window_t{XCB_NONE};
    // The focus may also be nowhere or follow the pointer; those two values are no windows.
    constexpr int deepest = 16;
    for (int level = 0; level < deepest && window > XCB_INPUT_FOCUS_POINTER_ROOT; ++level) {
        // What a window within another belongs to is told by the outer one (ICCCM 2.0, 4.1.2.5).
        if (connection_.bytes(window, "WM_CLASS")) {
            return window;
        }
        xcb_generic_error_t* error = nullptr;
        const XcbOwned<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection, xcb_query_tree(connection, window), &error));
        const XcbOwned<xcb_generic_error_t> owned(error); // The window may be gone by now.
        window = tree ? tree->parent : xcb_window_t{XCB_NONE};
    }
    return 0;
}

std::optional<X11Window> X11Windows::activeWindow(std::chrono::steady_clock::time_point deadline) {
    xcb_window_t active = activeWindowIdentifier();
    if (active == 0) {
        const X11RootPropertyWatch watch(connection_);
        do {
            active = activeWindowIdentifier();
        } while (active == 0 && connection_.waitForPropertyChange(deadline));
    }
    return active == 0 ? std::nullopt : std::optional(describe(active));
}

std::vector<xcb_window_t> X11Windows::topmostFirst() {
    auto identifiers = connection_.numbers(connection_.root(), "_NET_CLIENT_LIST_STACKING");
    if (identifiers.empty()) {
        identifiers = connection_.numbers(connection_.root(), "_NET_CLIENT_LIST");
    }
    std::reverse(identifiers.begin(), identifiers.end());
    return identifiers;
}

std::vector<X11Window> X11Windows::windows() {
    const auto identifiers = topmostFirst();
    std::vector<X11Window> described;
    described.reserve(identifiers.size());
    std::transform(identifiers.begin(), identifiers.end(), std::back_inserter(described),
                   [this](xcb_window_t window) { return describe(window); });
    return described;
}

std::vector<xcb_window_t> X11Windows::activeFirst() {
    std::vector<xcb_window_t> identifiers = topmostFirst();
    if (const xcb_window_t active = activeWindowIdentifier(); active != 0) {
        std::erase(identifiers, active);
        identifiers.insert(identifiers.begin(), active);
    }
    return identifiers;
}

std::optional<X11Window> X11Windows::frontWindow(std::int32_t processIdentifier) {
    const auto identifiers = activeFirst();
    const auto found = std::find_if(identifiers.begin(), identifiers.end(), [&](xcb_window_t window) {
        return processOf(window) == processIdentifier;
    });
    return found == identifiers.end() ? std::nullopt : std::optional(describe(*found));
}

std::vector<X11Window> X11Windows::windowsOf(std::int32_t processIdentifier) {
    std::vector<X11Window> found;
    for (const xcb_window_t window : activeFirst()) {
        if (processOf(window) == processIdentifier) {
            found.push_back(describe(window));
        }
    }
    return found;
}

std::optional<X11Rectangle> X11Windows::activeWindowFrame() {
    const xcb_window_t window = activeWindowIdentifier();
    xcb_connection_t* connection = connection_.handle();
    if (window == 0) {
        return std::nullopt;
    }
    const auto sizeCookie = xcb_get_geometry(connection, window);
    const auto placeCookie = xcb_translate_coordinates(connection, window, connection_.root(), 0, 0);
    xcb_generic_error_t* sizeError = nullptr;
    xcb_generic_error_t* placeError = nullptr;
    const XcbOwned<xcb_get_geometry_reply_t> size(xcb_get_geometry_reply(connection, sizeCookie, &sizeError));
    const XcbOwned<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(connection, placeCookie, &placeError));
    const XcbOwned<xcb_generic_error_t> ownedSizeError(sizeError); // The window may be gone by now.
    const XcbOwned<xcb_generic_error_t> ownedPlaceError(placeError);
    if (!size || !place) {
        return std::nullopt;
    }
    X11Rectangle frame{place->dst_x, place->dst_y, size->width, size->height};
    // Left, right, top, bottom.
    if (const auto extents = connection_.numbers(window, "_NET_FRAME_EXTENTS"); extents.size() == 4) {
        frame.x -= static_cast<std::int32_t>(extents[0]);
        frame.y -= static_cast<std::int32_t>(extents[2]);
        frame.width += static_cast<std::int32_t>(extents[0] + extents[1]);
        frame.height += static_cast<std::int32_t>(extents[2] + extents[3]);
    }
    return frame;
}

bool X11Windows::activate(xcb_window_t window, xcb_timestamp_t userTime) {
    // From a pager, which is obeyed whichever window has the user's attention; no own window.
    constexpr std::uint32_t fromPager = 2;
    return connection_.sendToWindowManager(window, "_NET_ACTIVE_WINDOW", {fromPager, userTime, 0});
}

bool X11Windows::waitUntilActive(std::int32_t processIdentifier,
                                 std::chrono::steady_clock::time_point deadline) {
    const X11RootPropertyWatch watch(connection_);
    do {
        const xcb_window_t active = activeWindowIdentifier();
        if (active != 0 && processOf(active) == processIdentifier) {
            return true;
        }
    } while (connection_.waitForPropertyChange(deadline));
    return false;
}

std::optional<std::string> X11Windows::accessibilityBusAddress() {
    auto address = connection_.bytes(connection_.root(), "AT_SPI_BUS");
    return address && !address->empty() ? std::optional<std::string>(address->c_str()) : std::nullopt;
}

std::optional<std::int32_t> X11Windows::processOf(xcb_window_t window) {
    return processIn(X11Properties(connection_, window, {"_NET_WM_PID", "WM_CLIENT_MACHINE"}));
}

X11Window X11Windows::describe(xcb_window_t window) {
    const X11Properties properties(connection_, window,
                                   {"_NET_WM_PID", "WM_CLIENT_MACHINE", "_NET_WM_NAME", "WM_NAME", "WM_CLASS",
                                    "_GTK_APPLICATION_ID", "_KDE_NET_WM_DESKTOP_FILE", "_NET_WM_STATE",
                                    "_GTK_MENUBAR_OBJECT_PATH", "_GTK_UNIQUE_BUS_NAME",
                                    "_GTK_APPLICATION_OBJECT_PATH", "_GTK_WINDOW_OBJECT_PATH"});
    X11Window described;
    described.identifier = window;
    described.processIdentifier = processIn(properties);
    auto title = properties.bytes("_NET_WM_NAME");
    if (!title) {
        title = properties.bytes("WM_NAME");
    }
    described.title = Text(title.value_or(""));
    std::tie(described.instanceName, described.className) =
        classParts(properties.bytes("WM_CLASS").value_or(""));
    auto application = properties.bytes("_GTK_APPLICATION_ID");
    if (!application) {
        application = properties.bytes("_KDE_NET_WM_DESKTOP_FILE");
    }
    described.applicationIdentifier = application.value_or("");
    described.gtkMenus = gtkMenusIn(properties);
    const auto states = properties.numbers("_NET_WM_STATE");
    described.isModal =
        std::find(states.begin(), states.end(), connection_.atom("_NET_WM_STATE_MODAL")) != states.end();
    return described;
}

} // namespace tovrel
