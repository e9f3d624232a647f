#pragma once

#include <vector>

#include "platform/KeyEventPoster.h"
#include "platform/x11/keyboard/X11KeyMap.h"
#include "platform/x11/server/X11Connection.h"

namespace tovrel {

/// Plays keys on an X display with its test extension (XTEST 2.2), on a connection of its own. Command is
/// Control, Control is Super, Option is Alt.
///
/// The Caps Lock flag and the locks are ignored: a lock is not a held key, and the user would see it turned
/// off and on. The Function and other flags have no counterpart and are dropped.
///
/// The keyboards themselves are asked for the keys that the user holds, because they still know a held key
/// that the server considers released. So a modifier that was lifted for the press is put back only if it is
/// held, and lifted again if it came up at that moment. If the keyboards cannot be asked, it stays lifted
/// until the user presses it again. If the user holds the posted key itself, such as the hot key that is
/// being forwarded, it is lifted and not put back.
class X11KeyEventPoster : public KeyEventPoster {
  public:
    /// Connects to `display`, or to $DISPLAY when null.
    explicit X11KeyEventPoster(const char* display = nullptr);

    [[nodiscard]] bool canPost() const override { return isAvailable_ && connection_.isOpen(); }
    /// Returns when the server has taken the keys. Returns false without a server or its extension, and for a
    /// key or a modifier that the keyboard lacks.
    bool postKeyPress(std::uint16_t keyCode, ModifierFlags flags) override;

  private:
    void play(xcb_keycode_t key, bool isPress);
    void putBack(const std::vector<xcb_keycode_t>& lifted);
    /// The keys that are down on the keyboards themselves; absent when that cannot be known.
    [[nodiscard]] std::optional<X11KeySet> heldByUser();

    X11Connection connection_;
    bool isAvailable_ = false;
    bool canAskKeyboards_ = false;
};

} // namespace tovrel
