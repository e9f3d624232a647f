#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon.h>

#include "support/Text.h"

namespace tovrel {

/// What the keys of an X display type, at the time of reading.
class X11Layout {
  public:
    /// Asks the server, which takes some milliseconds; without an answer no key types anything.
    explicit X11Layout(xcb_connection_t* connection);

    /// What the key types in a group of the layout ("us", "ru"), with Shift or without any modifier. Absent
    /// when that is nothing, a control character or a dead key.
    [[nodiscard]] std::optional<Text> text(xcb_keycode_t key, std::uint32_t group, bool withShift) const;

  private:
    struct Release {
        void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
        void operator()(xkb_state* state) const { xkb_state_unref(state); }
    };

    std::unique_ptr<xkb_state, Release> state_; ///< Keeps the key map alive.
    xkb_mod_mask_t shift_ = 0;
};

} // namespace tovrel
