#include "hotkeys/HotKeyManager.h"

#include <chrono>
#include <limits>
#include <utility>

#include "support/Fatal.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

/// The time until the desktop no longer treats the keystroke as our hot key.
constexpr auto beforePosting = 50ms;
/// The time until the application in front has received the keystroke.
constexpr auto beforeTakingBack = 150ms;

std::uint16_t postableKeyCode(const Shortcut& shortcut) {
    if (shortcut.carbonKeyCode < 0 || shortcut.carbonKeyCode > std::numeric_limits<std::uint16_t>::max()) {
        fatal("the shortcut's key code does not fit 16 bits");
    }
    return static_cast<std::uint16_t>(shortcut.carbonKeyCode);
}

/// The modifiers that an application receives; it cannot know Function.
constexpr ModifierFlags postableFlags = modifier_flags::command | modifier_flags::shift |
                                        modifier_flags::option | modifier_flags::control |
                                        modifier_flags::capsLock;

} // namespace

std::shared_ptr<HotKeyManager> HotKeyManager::make(KeyboardShortcuts& shortcuts,
                                                   KeyboardShortcuts::Name toggleShortcut,
                                                   KeyEventPoster& poster, MainQueue& queue) {
    return std::make_shared<HotKeyManager>(Key(), shortcuts, std::move(toggleShortcut), poster, queue);
}

HotKeyManager::HotKeyManager(Key /*key*/, KeyboardShortcuts& shortcuts,
                             KeyboardShortcuts::Name toggleShortcut, KeyEventPoster& poster, MainQueue& queue)
    : shortcuts_(&shortcuts), toggleShortcut_(std::move(toggleShortcut)), poster_(&poster), queue_(&queue) {}

void HotKeyManager::handleKeyDown() {
    if (repeatGuard_.keyDown() && onTogglePalette) {
        onTogglePalette();
    }
}

void HotKeyManager::handleKeyUp() {
    repeatGuard_.keyUp();
}

void HotKeyManager::forwardToggleShortcut() {
    repeatGuard_.keyUp(); // another program gets the key-up of this press
    if (isForwardingToggleShortcut_) {
        return;
    }
    const std::optional<Shortcut> shortcut = shortcuts_->getShortcut(toggleShortcut_);
    if (!shortcut) {
        return;
    }
    isForwardingToggleShortcut_ = true;
    shortcuts_->disable({toggleShortcut_});
    // The forwarding goes on even without this manager, because the shortcut must come back.
    queue_->postAfter(beforePosting, [weak = weak_from_this(), shortcuts = shortcuts_, poster = poster_,
                                      queue = queue_, name = toggleShortcut_, shortcut = *shortcut] {
        poster->postKeyPress(postableKeyCode(shortcut),
                             modifierFlags(shortcut.carbonModifiers) & postableFlags);
        queue->postAfter(beforeTakingBack, [weak, shortcuts, name] {
            shortcuts->enable({name});
            if (const auto manager = weak.lock()) {
                manager->isForwardingToggleShortcut_ = false;
            }
        });
    });
}

} // namespace tovrel
