#pragma once

#include <functional>

#include "platform/HotKeyCenter.h"
#include "platform/x11/hotkeys/KeyboardGuard.h"
#include "platform/x11/server/X11Connection.h"

namespace tovrel {

/// The whole keyboard, taken from everyone else while the user sets a shortcut (HotKeyCenter::takeKeyboard).
///
/// After each key the server keeps what is typed until that key is handled, so that nothing is lost of it
/// should the keyboard have to be let go. Each key is a hold of its own for the guard.
class X11TakenKeyboard {
  public:
    /// Both outlive it.
    X11TakenKeyboard(X11Connection& connection, KeyboardGuard& guard)
        : connection_(connection), guard_(guard) {}

    [[nodiscard]] bool isTaken() const { return static_cast<bool>(handler_); }

    /// False, and nothing changes, when another program has the keyboard or it is taken already.
    [[nodiscard]] bool take(HotKeyCenter::KeyHandler handler, std::function<void()> onLoss);
    /// As HotKeyCenter::giveKeyboardBack.
    void giveBack(bool passesKeyOn);

    /// A key has come, and with it the hold. For a keyboard that is taken.
    void handleKey(const KeyEvent& key, KeyboardGuard::Hold hold);

  private:
    X11Connection& connection_;
    KeyboardGuard& guard_;
    HotKeyCenter::KeyHandler handler_; ///< While the keyboard is taken.
    std::function<void()> onLoss_;
    KeyboardGuard::Hold key_ = 0; ///< Of the key that is being handled; 0 between keys.
};

} // namespace tovrel
