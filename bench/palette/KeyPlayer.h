#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/x11/server/X11Connection.h"

namespace tovrel {

/// Plays keys as if on the keyboard (XTEST). The connection must outlive the object.
class KeyPlayer {
  public:
    explicit KeyPlayer(X11Connection& connection);

    /// Collects the presses and releases of words such as "ctrl+shift+p" (all down in this order and up in
    /// the opposite one), "down:ctrl+shift+p" and "up:ctrl+shift+p". Returns false for a key that is not on
    /// the keyboard.
    bool play(const std::vector<std::string>& words);
    /// Sends the collected presses and releases, in one piece.
    void send();

  private:
    bool play(std::string_view word);
    void press(xcb_keycode_t key, bool isPress);

    X11Connection& connection_;
    std::unordered_map<std::string, xcb_keycode_t> keys_;
};

} // namespace tovrel
