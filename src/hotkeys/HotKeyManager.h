#pragma once

#include <functional>
#include <memory>

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "hotkeys/HotKeyRepeatGuard.h"
#include "platform/KeyEventPoster.h"
#include "platform/MainQueue.h"

namespace tovrel {

/// Makes one toggle of each physical press of the global shortcut, or hands the keystroke on to the
/// application in front.
class HotKeyManager : public std::enable_shared_from_this<HotKeyManager> {
  public:
    /// Only made as shared: what it posts to the queue may outlive it. The references must outlive the
    /// queue's tasks.
    HotKeyManager(KeyboardShortcuts& shortcuts, KeyboardShortcuts::Name toggleShortcut,
                  KeyEventPoster& poster, MainQueue& queue);

    /// Called once for each accepted press; may be empty.
    std::function<void()> onTogglePalette;

    /// The shortcut went down; repeats of a held key are ignored.
    void handleKeyDown();
    /// The shortcut came up.
    void handleKeyUp();

    /// Whether this desktop lets the shortcut be forwarded. Where it does not, the press is lost to the
    /// application as well, and the user is to be told.
    [[nodiscard]] bool canForwardToggleShortcut() const { return poster_->canPost(); }

    /// Lets the application in front have the shortcut: gives the hot key back, posts the same keystroke 50
    /// ms later, and takes the hot key again after another 150 ms. Does nothing while such a forwarding is
    /// under way, or when there is no shortcut.
    void forwardToggleShortcut();

  private:
    KeyboardShortcuts* shortcuts_;
    KeyboardShortcuts::Name toggleShortcut_;
    KeyEventPoster* poster_;
    MainQueue* queue_;
    HotKeyRepeatGuard repeatGuard_;
    bool isForwardingToggleShortcut_ = false;
};

} // namespace tovrel
