#include "platform/x11/keyboard/X11RawKeys.h"

#include <xcb/xinput.h>

#include "platform/x11/server/XcbOwned.h"

namespace tovrel {

X11RawKeys::X11RawKeys(xcb_connection_t* connection, xcb_window_t root)
    : connection_(connection), root_(root) {
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &xcb_input_id);
    if (extension == nullptr || extension->present == 0) {
        return;
    }
    opcode_ = extension->major_opcode;
    // From 2.1 on, raw events come even while another client has grabbed the keyboard.
    const XcbOwned<xcb_input_xi_query_version_reply_t> version(
        xcb_input_xi_query_version_reply(connection, xcb_input_xi_query_version(connection, 2, 1), nullptr));
    isAvailable_ = version && (version->major_version > 2 ||
                               (version->major_version == 2 && version->minor_version >= 1));
}

void X11RawKeys::select(bool presses, bool releases) {
    std::uint32_t wanted = 0;
    if (presses) {
        wanted |= XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS;
    }
    if (releases) {
        wanted |= XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE;
    }
    if (!isAvailable_ || wanted == selected_) {
        return;
    }
    selected_ = wanted;
    struct {
        xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL_MASTER, 1};
        std::uint32_t mask = 0;
    } selection;
    selection.mask = wanted;
    xcb_input_xi_select_events(connection_, root_, 1, &selection.head);
}

std::optional<X11RawKeys::Key> X11RawKeys::keyOf(const xcb_generic_event_t& event) const {
    if (!isAvailable_ || (event.response_type & 0x7FU) != XCB_GE_GENERIC) {
        return std::nullopt;
    }
    const auto& key = reinterpret_cast<const xcb_input_raw_key_press_event_t&>(event);
    if (key.extension != opcode_ ||
        (key.event_type != XCB_INPUT_RAW_KEY_PRESS && key.event_type != XCB_INPUT_RAW_KEY_RELEASE)) {
        return std::nullopt;
    }
    return Key{key.detail, key.event_type == XCB_INPUT_RAW_KEY_PRESS};
}

} // namespace tovrel
