#pragma once

#include <functional>
#include <memory>

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "hotkeys/HotKeyRepeatGuard.h"
#include "platform/KeyEventPoster.h"
#include "platform/MainQueue.h"

namespace tovrel {

/// Turns each physical press of the global shortcut into one toggle, or forwards the keystroke to the
/// application in front.
class HotKeyManager : public std::enable_shared_from_this<HotKeyManager> {
    /// Lets only `make` call the constructor.
    class Key {
        friend HotKeyManager;
        Key() = default;
    };

  public:
    /// Returns a shared manager, because tasks of the queue hold it weakly. The references must outlive the
    /// queue's tasks.
    [[nodiscard]] static std::shared_ptr<HotKeyManager> make(KeyboardShortcuts& shortcuts,
                                                             KeyboardShortcuts::Name toggleShortcut,
                                                             KeyEventPoster& poster, MainQueue& queue);
    HotKeyManager(Key key, KeyboardShortcuts& shortcuts, KeyboardShortcuts::Name toggleShortcut,
                  KeyEventPoster& poster, MainQueue& queue);
    ~HotKeyManager() = default;
    HotKeyManager(const HotKeyManager&) = delete;
    HotKeyManager& operator=(const HotKeyManager&) = delete;

    /// Called once for each accepted press; may be empty.
    std::function<void()> onTogglePalette;

    /// Handles the press of the shortcut; ignores repeats of a held key.
    void handleKeyDown();
    /// Handles the release of the shortcut.
    void handleKeyUp();

    /// Whether this desktop lets the shortcut be forwarded. If not, the application does not get the press
    /// either, and the user should be told.
    [[nodiscard]] bool canForwardToggleShortcut() const { return poster_->canPost(); }

    /// Forwards the shortcut to the application in front: gives the hot key back, posts the same keystroke 50
    /// ms later, and takes the hot key again after another 150 ms. Does nothing while a forwarding is under
    /// way, or without a shortcut.
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
