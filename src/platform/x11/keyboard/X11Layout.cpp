#include "platform/x11/keyboard/X11Layout.h"

#include <array>
#include <string>

#include <xkbcommon/xkbcommon-x11.h>

namespace tovrel {

X11Layout::X11Layout(xcb_connection_t* connection) {
    struct ReleaseContext {
        void operator()(xkb_context* context) const { xkb_context_unref(context); }
    };
    const std::unique_ptr<xkb_context, ReleaseContext> context(
        xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES));
    const std::int32_t device = xkb_x11_get_core_keyboard_device_id(connection);
    if (!context || device < 0) {
        return;
    }
    const std::unique_ptr<xkb_keymap, Release> keymap(
        xkb_x11_keymap_new_from_device(context.get(), connection, device, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!keymap) {
        return;
    }
    state_.reset(xkb_state_new(keymap.get()));
    if (const auto shift = xkb_keymap_mod_get_index(keymap.get(), XKB_MOD_NAME_SHIFT);
        shift != XKB_MOD_INVALID) {
        shift_ = xkb_mod_mask_t{1} << shift;
    }
}

std::optional<Text> X11Layout::text(xcb_keycode_t key, std::uint32_t group, bool withShift) const {
    if (!state_) {
        return std::nullopt;
    }
    xkb_state_update_mask(state_.get(), withShift ? shift_ : 0, 0, 0, 0, 0, group);
    std::array<char, 64> buffer{}; // A keysym's text has a few bytes; a longer one is cut off.
    const int length = xkb_state_key_get_utf8(state_.get(), key, buffer.data(), buffer.size());
    if (length <= 0 || static_cast<std::size_t>(length) >= buffer.size()) {
        return std::nullopt;
    }
    const std::string typed(buffer.data(), static_cast<std::size_t>(length));
    const auto first = static_cast<unsigned char>(typed.front());
    return first < 0x20 || first == 0x7F ? std::nullopt : std::optional(Text(typed));
}

} // namespace tovrel
