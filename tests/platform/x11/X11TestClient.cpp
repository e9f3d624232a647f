#include "platform/x11/X11TestClient.h"

#include <stdexcept>

#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include "platform/linux/keyboard/VirtualKeyCodes.h"
#include "platform/x11/keyboard/X11KeyMap.h"
#include "platform/x11/server/XcbOwned.h"

namespace tovrel {

X11TestClient::X11TestClient(const std::string& display) : connection_(display.c_str()) {
    window_ = xcb_generate_id(connection_.handle());
    const std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE |
                                 XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_create_window(connection_.handle(), XCB_COPY_FROM_PARENT, window_, connection_.root(), 0, 0, 20, 20,
                      0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection_.handle());
}

void X11TestClient::map() {
    xcb_map_window(connection_.handle(), window_);
    xcb_flush(connection_.handle());
}

void X11TestClient::unmap() {
    xcb_unmap_window(connection_.handle(), window_);
    xcb_flush(connection_.handle());
}

void X11TestClient::focus() {
    xcb_set_input_focus(connection_.handle(), XCB_INPUT_FOCUS_POINTER_ROOT, window_, XCB_CURRENT_TIME);
    xcb_flush(connection_.handle());
}

std::vector<std::uint32_t> X11TestClient::presses() const {
    std::vector<std::uint32_t> codes;
    for (const Key& key : keys_) {
        if (key.isPress) {
            codes.push_back(key.keyCode);
        }
    }
    return codes;
}

void X11TestClient::dispatch() {
    while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(connection_.handle())}) {
        const unsigned type = event->response_type & 0x7FU;
        if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE) {
            const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(*event);
            keys_.push_back({virtualKeyCodeOfXkb(key.detail).value_or(1000U + key.detail),
                             type == XCB_KEY_PRESS, static_cast<std::uint16_t>(key.state & 0xFFU)});
        } else if (type == XCB_FOCUS_IN || type == XCB_FOCUS_OUT) {
            const auto& change = reinterpret_cast<const xcb_focus_in_event_t&>(*event);
            const bool isMove =
                change.mode == XCB_NOTIFY_MODE_NORMAL || change.mode == XCB_NOTIFY_MODE_WHILE_GRABBED;
            if (isMove && change.detail <= XCB_NOTIFY_DETAIL_NONLINEAR_VIRTUAL) {
                hasFocus_ = type == XCB_FOCUS_IN;
            }
            if (change.mode != XCB_NOTIFY_MODE_WHILE_GRABBED &&
                change.detail <= XCB_NOTIFY_DETAIL_NONLINEAR_VIRTUAL) {
                seemsFocused_ = type == XCB_FOCUS_IN;
            }
        } else if (type == XCB_MAP_NOTIFY || type == XCB_UNMAP_NOTIFY) {
            isMapped_ = type == XCB_MAP_NOTIFY;
            if (onVisibility) {
                onVisibility(isMapped_);
            }
        }
    }
}

X11TestKeyboard::X11TestKeyboard(const std::string& display, Kind kind) : connection_(display.c_str()) {
    if (kind == Kind::synthetic) {
        return;
    }
    pressType_ =
        static_cast<std::uint8_t>(xcb_get_extension_data(connection_.handle(), &xcb_input_id)->first_event +
                                  XCB_INPUT_DEVICE_KEY_PRESS);
    const XcbOwned<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        connection_.handle(), xcb_input_xi_query_version(connection_.handle(), 2, 1), nullptr));
    const XcbOwned<xcb_input_xi_query_device_reply_t> devices(xcb_input_xi_query_device_reply(
        connection_.handle(), xcb_input_xi_query_device(connection_.handle(), XCB_INPUT_DEVICE_ALL),
        nullptr));
    for (auto at = xcb_input_xi_query_device_infos_iterator(devices.get()); at.rem > 0;
         xcb_input_xi_device_info_next(&at)) {
        const std::string name(xcb_input_xi_device_info_name(at.data), at.data->name_len);
        if (at.data->type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD &&
            name.find("XTEST") == std::string::npos) {
            device_ = static_cast<std::uint8_t>(at.data->deviceid);
        }
    }
    if (device_ == 0) {
        throw std::runtime_error("the server has no keyboard");
    }
}

void X11TestKeyboard::tap(std::uint32_t keyCode) {
    press(keyCode);
    release(keyCode);
}

void X11TestKeyboard::flush() {
    static_cast<void>(modifiers()); // The server answers after all earlier requests.
}

std::vector<std::uint32_t> X11TestKeyboard::down() {
    std::vector<std::uint32_t> codes;
    const X11KeySet keys = keysDown(connection_.handle()).value();
    for (std::uint32_t key = 0; key < keys.size(); ++key) {
        if (keys[key]) {
            codes.push_back(virtualKeyCodeOfXkb(key).value_or(1000 + key));
        }
    }
    return codes;
}

std::uint16_t X11TestKeyboard::modifiers() {
    const XcbOwned<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
        connection_.handle(), xcb_query_pointer(connection_.handle(), connection_.root()), nullptr));
    return static_cast<std::uint16_t>(reply->mask & 0xFFU);
}

void X11TestKeyboard::play(std::uint32_t keyCode, bool isPress) {
    const auto type = static_cast<std::uint8_t>(isPress ? pressType_ : pressType_ + 1);
    xcb_test_fake_input(connection_.handle(), type, xkbKeyCode(keyCode).value(), 0, XCB_NONE, 0, 0, device_);
}

} // namespace tovrel
