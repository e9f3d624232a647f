#pragma once

#include <vector>

#include "platform/KeyEventPoster.h"
#include "platform/x11/keyboard/X11KeyMap.h"
#include "platform/x11/server/X11Connection.h"

namespace tovrel {

/// Plays keys on an X display by its extension for tests (XTEST 2.2), on a connection of its own. Command is
/// Control, Control is Super, Option is Alt.
///
/// The Caps Lock flag and the locks are left alone: a lock is no key that is held, and to turn one off and on
/// again would show. The Function and other flags have no counterpart and are dropped.
///
/// What the user holds is asked of the keyboards themselves, which still know it while the server takes a key
/// for released. So a modifier that had to be lifted for the press is put back only if it is held, and lifted
/// again if it came up in that very moment; where the keyboards cannot be asked it stays lifted until the
/// user presses it anew. A key of the user's that is down itself, such as the hot key that is being passed
/// on, is lifted and not put back.
class X11KeyEventPoster : public KeyEventPoster {
  public:
    /// Connects to `display`, or to $DISPLAY when null.
    explicit X11KeyEventPoster(const char* display = nullptr);

    [[nodiscard]] bool canPost() const override { return isAvailable_ && connection_.isOpen(); }
    /// Returns when the server has taken the keys. False without a server or its extension, and for a key or
    /// a modifier that the keyboard lacks.
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
