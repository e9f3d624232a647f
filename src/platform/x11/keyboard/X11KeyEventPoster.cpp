#include "platform/x11/keyboard/X11KeyEventPoster.h"

#include <algorithm>
#include <string_view>

#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include "platform/linux/keyboard/VirtualKeyCodes.h"
#include "platform/x11/server/XcbOwned.h"

namespace tovrel {
namespace {

bool hasExtension(xcb_connection_t* connection, xcb_extension_t* extension) {
    const xcb_query_extension_reply_t* reply = xcb_get_extension_data(connection, extension);
    return reply != nullptr && reply->present != 0;
}

/// The number of a keyboard on which people type; absent for the one on which the test extension plays, and
/// for other devices.
std::optional<std::uint8_t> keyboardNumber(const xcb_input_xi_device_info_t* device) {
    const std::string_view name(xcb_input_xi_device_info_name(device), device->name_len);
    return device->type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD && device->deviceid <= 0xFF &&
                   name.find("XTEST") == std::string_view::npos
               ? std::optional(static_cast<std::uint8_t>(device->deviceid))
               : std::nullopt;
}

X11KeySet keysOf(const xcb_input_query_device_state_reply_t* state) {
    X11KeySet keys;
    for (auto at = xcb_input_query_device_state_classes_iterator(state); at.rem > 0;
         xcb_input_input_state_next(&at)) {
        if (at.data->class_id == XCB_INPUT_INPUT_CLASS_KEY) {
            keys |= keySet(reinterpret_cast<const xcb_input_key_state_t*>(at.data)->keys);
        }
    }
    return keys;
}

/// The modifier keys that must change for a press.
struct ModifierKeys {
    std::vector<xcb_keycode_t> lifted; ///< Down but unwanted.
    std::vector<xcb_keycode_t> added;  ///< Wanted, while none of the modifier's keys is down.
};

ModifierKeys modifierKeysFor(const X11KeyMap& keyMap, const X11KeySet& down, xcb_keycode_t pressed,
                             X11Modifiers wanted) {
    ModifierKeys keys;
    X11Modifiers held = 0;
    for (std::size_t number = 0; number < down.size(); ++number) {
        const auto key = static_cast<xcb_keycode_t>(number);
        const auto modifiers = static_cast<X11Modifiers>(keyMap.modifiersOfKey(key) & ~keyMap.locks());
        if (!down.test(number) || key == pressed) {
            continue;
        }
        if ((modifiers & ~wanted) != 0) {
            keys.lifted.push_back(key);
        } else {
            held |= modifiers;
        }
    }
    for (unsigned bit = 0; bit < 8; ++bit) {
        const auto modifier = static_cast<X11Modifiers>(1U << bit);
        const auto& candidates = keyMap.keysOfModifier(modifier);
        if ((wanted & modifier) != 0 && (held & modifier) == 0 && !candidates.empty()) {
            keys.added.push_back(candidates.front());
        }
    }
    return keys;
}

} // namespace

X11KeyEventPoster::X11KeyEventPoster(const char* display) : connection_(display) {
    isAvailable_ = hasExtension(connection_.handle(), &xcb_test_id);
    if (!hasExtension(connection_.handle(), &xcb_input_id)) {
        return;
    }
    const XcbOwned<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        connection_.handle(), xcb_input_xi_query_version(connection_.handle(), 2, 0), nullptr));
    canAskKeyboards_ = version && version->major_version >= 2;
}

bool X11KeyEventPoster::postKeyPress(std::uint16_t keyCode, ModifierFlags flags) {
    const auto key = xkbKeyCode(keyCode);
    const auto keyMap = X11KeyMap::read(connection_.handle());
    if (!isAvailable_ || !key || !keyMap || !keyMap->hasKey(*key)) {
        return false;
    }
    const auto wanted = keyMap->modifiersFor(flags);
    const auto down = keysDown(connection_.handle());
    if (!wanted || !down) {
        return false;
    }
    const ModifierKeys others = modifierKeysFor(*keyMap, *down, *key, *wanted);
    std::for_each(others.lifted.begin(), others.lifted.end(),
                  [this](xcb_keycode_t code) { play(code, false); });
    for (const xcb_keycode_t code : others.added) {
        // The extension's own keyboard may still have the key down, and would not press it a second time.
        play(code, false);
        play(code, true);
    }
    play(*key, false);
    play(*key, true);
    play(*key, false);
    std::for_each(others.added.rbegin(), others.added.rend(),
                  [this](xcb_keycode_t code) { play(code, false); });
    putBack(others.lifted);
    // Any question will do, because the server answers it after all earlier requests.
    return keysDown(connection_.handle()).has_value();
}

void X11KeyEventPoster::play(xcb_keycode_t key, bool isPress) {
    xcb_test_fake_input(connection_.handle(), isPress ? XCB_KEY_PRESS : XCB_KEY_RELEASE, key,
                        XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
}

void X11KeyEventPoster::putBack(const std::vector<xcb_keycode_t>& lifted) {
    const auto before = lifted.empty() ? std::nullopt : heldByUser();
    if (!before) {
        return;
    }
    std::vector<xcb_keycode_t> restored;
    std::copy_if(lifted.begin(), lifted.end(), std::back_inserter(restored),
                 [&](xcb_keycode_t code) { return before->test(code); });
    std::for_each(restored.begin(), restored.end(), [this](xcb_keycode_t code) { play(code, true); });
    // The server ignored the release of a key that came up meanwhile, because it considered the key up
    // already.
    const X11KeySet after = heldByUser().value_or(X11KeySet());
    for (const xcb_keycode_t code : restored) {
        if (!after.test(code)) {
            play(code, false);
        }
    }
}

std::optional<X11KeySet> X11KeyEventPoster::heldByUser() {
    if (!canAskKeyboards_) {
        return std::nullopt;
    }
    xcb_connection_t* connection = connection_.handle();
    const XcbOwned<xcb_input_xi_query_device_reply_t> devices(xcb_input_xi_query_device_reply(
        connection, xcb_input_xi_query_device(connection, XCB_INPUT_DEVICE_ALL), nullptr));
    if (!devices) {
        return std::nullopt;
    }
    X11KeySet keys;
    for (auto at = xcb_input_xi_query_device_infos_iterator(devices.get()); at.rem > 0;
         xcb_input_xi_device_info_next(&at)) {
        const auto number = keyboardNumber(at.data);
        if (!number) {
            continue;
        }
        xcb_generic_error_t* error = nullptr;
        const XcbOwned<xcb_input_query_device_state_reply_t> state(xcb_input_query_device_state_reply(
            connection, xcb_input_query_device_state(connection, *number), &error));
        const XcbOwned<xcb_generic_error_t> owned(error); // The keyboard may be unplugged by now.
        if (state) {
            keys |= keysOf(state.get());
        }
    }
    return keys;
}

} // namespace tovrel
