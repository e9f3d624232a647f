#include "platform/x11/windows/X11WindowList.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <string_view>
#include <system_error>
#include <tuple>
#include <unistd.h>
#include <utility>

#include "platform/linux/dbus/DBus.h"
#include "platform/x11/server/X11Properties.h"
#include "platform/x11/server/XcbOwned.h"

namespace tovrel {
namespace {

/// Whether the window's process runs on this machine; otherwise its process identifier means nothing here.
bool isThisMachine(const std::optional<std::string>& clientMachine) {
    std::array<char, 256> name{};
    if (!clientMachine || gethostname(name.data(), name.size() - 1) != 0) {
        return true;
    }
    // Some programs write the name with a domain, some with a final NUL.
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

/// The window with this identifier; absent for one that no window of an X display can have.
std::optional<xcb_window_t> windowOf(const WindowIdentifier& identifier) {
    xcb_window_t window = 0;
    const char* const end = identifier.data() + identifier.size();
    const auto [stop, error] = std::from_chars(identifier.data(), end, window);
    return error == std::errc() && stop == end && window != 0 ? std::optional(window) : std::nullopt;
}

} // namespace

X11WindowList::X11WindowList(const char* display)
    : display_(display == nullptr ? std::nullopt : std::optional<std::string>(display)),
      connection_(display) {}

xcb_window_t X11WindowList::activeWindowIdentifier() {
    if (const auto active = connection_.activeWindow()) {
        return *active;
    }
    return connection_.hasWindowManager() ? 0 : focusedWindow();
}

xcb_window_t X11WindowList::focusedWindow() {
    xcb_connection_t* connection = connection_.handle();
    const XcbOwned<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    xcb_window_t window = focus ? focus->focus : xcb_window_t{XCB_NONE};
    // The focus may also be nowhere or follow the pointer; these two values are not windows.
    constexpr int deepest = 16;
    for (int level = 0; level < deepest && window > XCB_INPUT_FOCUS_POINTER_ROOT; ++level) {
        // The outer window tells to which application a window inside it belongs (ICCCM 2.0, 4.1.2.5).
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

std::optional<ApplicationWindow> X11WindowList::activeWindow(std::chrono::steady_clock::time_point deadline) {
    xcb_window_t active = activeWindowIdentifier();
    if (active == 0) {
        const X11RootPropertyWatch watch(connection_);
        do {
            active = activeWindowIdentifier();
        } while (active == 0 && connection_.waitForPropertyChange(deadline));
    }
    return active == 0 ? std::nullopt : std::optional(describe(active));
}

std::vector<xcb_window_t> X11WindowList::topmostFirst() {
    auto identifiers = connection_.numbers(connection_.root(), "_NET_CLIENT_LIST_STACKING");
    if (identifiers.empty()) {
        identifiers = connection_.numbers(connection_.root(), "_NET_CLIENT_LIST");
    }
    std::reverse(identifiers.begin(), identifiers.end());
    return identifiers;
}

std::vector<ApplicationWindow> X11WindowList::windows() {
    const auto identifiers = topmostFirst();
    std::vector<ApplicationWindow> described;
    described.reserve(identifiers.size());
    std::transform(identifiers.begin(), identifiers.end(), std::back_inserter(described),
                   [this](xcb_window_t window) { return describe(window); });
    return described;
}

std::vector<xcb_window_t> X11WindowList::activeFirst() {
    std::vector<xcb_window_t> identifiers = topmostFirst();
    if (const xcb_window_t active = activeWindowIdentifier(); active != 0) {
        std::erase(identifiers, active);
        identifiers.insert(identifiers.begin(), active);
    }
    return identifiers;
}

std::vector<ApplicationWindow> X11WindowList::windowsOf(std::int32_t processIdentifier) {
    std::vector<ApplicationWindow> found;
    for (const xcb_window_t window : activeFirst()) {
        if (processOf(window) == processIdentifier) {
            found.push_back(describe(window));
        }
    }
    return found;
}

bool X11WindowList::activate(const WindowIdentifier& window) {
    const auto identifier = windowOf(window);
    if (!identifier) {
        return false;
    }
    // The request claims to come from a pager, which managers obey whichever window the user works in. It has
    // no time of an action and no own window.
    constexpr std::uint32_t fromPager = 2;
    return connection_.sendToWindowManager(*identifier, "_NET_ACTIVE_WINDOW",
                                           {fromPager, XCB_CURRENT_TIME, 0});
}

bool X11WindowList::waitUntilActive(std::int32_t processIdentifier,
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

Subscription X11WindowList::onActivation(std::function<void(const ApplicationWindow&)> observer) {
    return activations_.subscribe(std::move(observer));
}

EventSource& X11WindowList::activationEvents() {
    if (!activationWatch_) {
        activationWatch_ = std::make_unique<X11ActivationWatch>(
            [this](xcb_window_t active) { activations_.notify(describe(active)); },
            display_ ? display_->c_str() : nullptr);
    }
    return *activationWatch_;
}

std::optional<std::string> X11WindowList::accessibilityBusAddress() {
    auto address = connection_.bytes(connection_.root(), "AT_SPI_BUS");
    return address && !address->empty() ? std::optional<std::string>(address->c_str()) : std::nullopt;
}

std::optional<std::int32_t> X11WindowList::processOf(xcb_window_t window) {
    return processIn(X11Properties(connection_, window, {"_NET_WM_PID", "WM_CLIENT_MACHINE"}));
}

ApplicationWindow X11WindowList::describe(xcb_window_t window) {
    const X11Properties properties(connection_, window,
                                   {"_NET_WM_PID", "WM_CLIENT_MACHINE", "_NET_WM_NAME", "WM_NAME", "WM_CLASS",
                                    "_GTK_APPLICATION_ID", "_KDE_NET_WM_DESKTOP_FILE", "_NET_WM_STATE",
                                    "_GTK_MENUBAR_OBJECT_PATH", "_GTK_UNIQUE_BUS_NAME",
                                    "_GTK_APPLICATION_OBJECT_PATH", "_GTK_WINDOW_OBJECT_PATH"});
    ApplicationWindow described;
    described.identifier = std::to_string(window);
    described.registrarIdentifier = window;
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
