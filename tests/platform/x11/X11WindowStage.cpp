#include "platform/x11/X11WindowStage.h"

#include <iterator>
#include <stdexcept>

#include "platform/x11/server/XcbOwned.h"

namespace tovrel {

X11WindowStage::X11WindowStage() : connection_(std::make_unique<X11Connection>(name_.c_str())) {
    if (!connection_->isOpen()) {
        throw std::runtime_error("Xvfb is needed");
    }
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT;
    xcb_change_window_attributes(connection(), root(), XCB_CW_EVENT_MASK, &mask);
    announceManager();
}

xcb_window_t X11WindowStage::make(std::uint32_t process, const std::string& title, xcb_window_t parent) {
    const xcb_window_t window = xcb_generate_id(connection());
    xcb_create_window(connection(), XCB_COPY_FROM_PARENT, window, parent == 0 ? root() : parent, 3, 4, 10, 20,
                      0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    setText(window, "_NET_WM_NAME", title);
    setNumbers(window, "_NET_WM_PID", {process});
    return window;
}

xcb_window_t X11WindowStage::open(std::uint32_t process, const std::string& title) {
    const xcb_window_t window = make(process, title);
    stacking_.push_back(window);
    setWindows(root(), "_NET_CLIENT_LIST_STACKING", stacking_);
    return window;
}

void X11WindowStage::setText(xcb_window_t window, const char* property, const std::string& value) {
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window, atom(property), XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(value.size()), value.data());
    waitForServer();
}

void X11WindowStage::setNumbers(xcb_window_t window, const char* property,
                                const std::vector<std::uint32_t>& values, xcb_atom_t type) {
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window, atom(property), type, 32,
                        static_cast<std::uint32_t>(values.size()), values.data());
    waitForServer();
}

void X11WindowStage::map(xcb_window_t window) {
    xcb_map_window(connection(), window);
    waitForServer();
}

void X11WindowStage::focus(xcb_window_t window) {
    xcb_set_input_focus(connection(), XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    waitForServer();
}

xcb_window_t X11WindowStage::focused() {
    const XcbOwned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection(), xcb_get_input_focus(connection()), nullptr));
    return reply ? reply->focus : xcb_window_t{XCB_NONE};
}

void X11WindowStage::waitForServer() {
    static_cast<void>(focused()); // The server answers any question after all earlier requests.
}

void X11WindowStage::announceManager() {
    manager_ = make(1, "Manager");
    setWindows(manager_, "_NET_SUPPORTING_WM_CHECK", {manager_});
    setWindows(root(), "_NET_SUPPORTING_WM_CHECK", {manager_});
}

void X11WindowStage::killManager() {
    xcb_destroy_window(connection(), manager_);
    waitForServer();
}

std::vector<X11WindowStage::Request> X11WindowStage::requests(const char* message) {
    waitForServer(); // Earlier events arrive with the answer.
    std::vector<Request> found;
    while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(connection())}) {
        const auto& received = reinterpret_cast<const xcb_client_message_event_t&>(*event);
        if ((event->response_type & 0x7FU) == XCB_CLIENT_MESSAGE && received.type == atom(message)) {
            found.push_back(
                {received.window, {std::begin(received.data.data32), std::end(received.data.data32)}});
        }
    }
    return found;
}

} // namespace tovrel
