#pragma once

#include <functional>

#include "platform/HotKeyCenter.h"
#include "platform/x11/hotkeys/KeyboardGuard.h"
#include "platform/x11/server/X11Connection.h"

namespace tovrel {

/// Takes the whole keyboard from all other programs while the user sets a shortcut
/// (HotKeyCenter::takeKeyboard).
///
/// After each key the server holds back further keys until that key is handled, so that none is lost if the
/// keyboard must be released. Each key is a separate hold for the guard.
class X11TakenKeyboard {
  public:
    /// Both arguments must outlive the object.
    X11TakenKeyboard(X11Connection& connection, KeyboardGuard& guard)
        : connection_(connection), guard_(guard) {}

    [[nodiscard]] bool isTaken() const { return static_cast<bool>(handler_); }

    /// Takes the keyboard. Returns false and changes nothing when another program has the keyboard or it is
    /// taken already.
    [[nodiscard]] bool take(HotKeyCenter::KeyHandler handler, std::function<void()> onLoss);
    /// Does what HotKeyCenter::giveKeyboardBack says.
    void giveBack(bool passesKeyOn);

    /// Handles a key, with which the hold began. The keyboard must be taken.
    void handleKey(const KeyEvent& key, KeyboardGuard::Hold hold);

  private:
    X11Connection& connection_;
    KeyboardGuard& guard_;
    HotKeyCenter::KeyHandler handler_; ///< Empty unless the keyboard is taken.
    std::function<void()> onLoss_;
    KeyboardGuard::Hold key_ = 0; ///< The hold of the key that is being handled; 0 between keys.
};

} // namespace tovrel
