#pragma once

#include <chrono>
#include <memory>
#include <vector>

#include "platform/HotKeyCenter.h"
#include "platform/KeyDestination.h"
#include "platform/MainQueue.h"
#include "platform/posix/EventSource.h"
#include "platform/x11/hotkeys/KeyboardGuard.h"
#include "platform/x11/hotkeys/X11EventReader.h"
#include "platform/x11/hotkeys/X11FocusWait.h"
#include "platform/x11/hotkeys/X11HotKeyGrab.h"
#include "platform/x11/hotkeys/X11TakenKeyboard.h"
#include "platform/x11/keyboard/X11KeyMap.h"
#include "platform/x11/keyboard/X11Layout.h"
#include "platform/x11/keyboard/X11RawKeys.h"
#include "platform/x11/keyboard/XkbExtension.h"
#include "platform/x11/server/X11Connection.h"

namespace tovrel {

/// Hot keys of an X11 desktop, on a connection of their own.
///
/// No keystroke is lost between a hot key and the window it opens. When the hot key fires, the server holds
/// back every later key event, while the handler runs and until the keyboard focus is where the handler has
/// sent it. Then the keyboard is released, and the server delivers these events in order, as if the keys were
/// typed now. The handler should be brief: while it runs, no program gets a key. A guard releases the
/// keyboard after 500 ms in all, whatever this thread does.
///
/// The release of a hot key is watched outside of any grab, so it is seen whichever window the key goes to
/// and in whatever order the keys come up. A held key is reported as pressed repeatedly. A key that is
/// already down when its combination is registered counts only from its next press on.
///
/// Command is Control, Control is Super, Option is Alt. The Function modifier is ignored, because keyboards
/// do not report it; Caps Lock, Num Lock and Scroll Lock may be on or off.
class X11HotKeyCenter : public HotKeyCenter, public EventSource {
  public:
    /// Called before a press is reported and after its handler has returned.
    using DestinationOfKeys = std::function<KeyDestination()>;

    /// The longest time for which the keyboard stays held after a handler has returned, for a window that
    /// never gets the focus. The focus was measured to arrive after 3 to 36 ms.
    static constexpr std::chrono::milliseconds longestFocusWait{300};

    /// Connects to `display`, or to $DISPLAY when null; without a server every registration is refused.
    X11HotKeyCenter(MainQueue& queue, DestinationOfKeys destination, const char* display = nullptr);

    /// Calls the completion before it returns.
    [[nodiscard]] HotKeyHandle registerHotKey(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                                              HotKeyIdentifier identifier, Completion completion) override;
    /// The release of a key that is down is no longer reported. The server has handled the request when this
    /// returns.
    void unregisterHotKey(HotKeyHandle handle) override;
    [[nodiscard]] std::optional<HotKeyError> refusal(HotKeyHandle handle) const override;
    void setKeyboardHandler(KeyboardHandler handler) override { keyboardHandler_ = std::move(handler); }
    void setHotKeyHandler(HotKeyHandler handler) override;
    /// The handler gets the keys typed anywhere; they also reach their window.
    void setRawKeyHandler(RawKeyHandler handler) override;
    /// Takes the keyboard without the focused window noticing.
    [[nodiscard]] bool takeKeyboard(KeyHandler handler, std::function<void()> onLoss) override;
    void giveKeyboardBack(bool passesKeyOn) override;
    /// An X server does not list other clients' grabs, so this tries the grab and gives it back at once.
    [[nodiscard]] bool isSystemShortcut(const Shortcut& shortcut) override;
    [[nodiscard]] std::optional<Text> characterForKeyCode(std::uint32_t keyCode) override;

    [[nodiscard]] int fileDescriptor() const override { return reader_.fileDescriptor(); }
    void dispatch() override;

    /// The server's time of the last press of a hot key, for requests that must name the user's action that
    /// caused them; 0 before the first press.
    [[nodiscard]] xcb_timestamp_t lastPressTime() const { return lastPressTime_; }

  private:
    enum class KeyState {
        up,
        down,
        heldBefore, ///< Held since before the registration.
    };
    struct Registration {
        HotKeyHandle handle = 0;
        HotKeyIdentifier identifier;
        std::uint32_t keyCode = 0;
        ModifierFlags modifiers = 0;
        X11HotKeyGrab grab;
        std::optional<HotKeyError> refusal; ///< Why the grab fails since the keyboard has changed.
        KeyState state = KeyState::up;
    };

    [[nodiscard]] HotKeyOutcome registered(Registration registration);
    /// The grab for a combination on the current keyboard, or why there is none.
    [[nodiscard]] std::variant<X11HotKeyGrab, HotKeyError> grabFor(std::uint32_t keyCode,
                                                                   ModifierFlags modifiers) const;
    /// Takes the grab; returns the reason if that fails.
    [[nodiscard]] std::optional<HotKeyError> take(const X11HotKeyGrab& grab) const;
    [[nodiscard]] Registration* find(HotKeyHandle handle);

    void handle(const xcb_generic_event_t& event, KeyboardGuard::Hold hold);
    void handleKey(const xcb_key_press_event_t& event, KeyboardGuard::Hold hold);
    void handlePress(const xcb_key_press_event_t& event, KeyboardGuard::Hold hold);
    void handleTakenKey(const xcb_key_press_event_t& event, bool isPress, KeyboardGuard::Hold hold);
    void handleRawKey(const X11RawKeys::Key& key);
    void released(HotKeyHandle handle);
    void report(HotKeyIdentifier identifier, HotKeyEventKind kind);

    /// Moves the grab from the root window to the window with the focus. A grab on the root tells the front
    /// window that it has lost the focus, and applications then disable commands before anyone could read
    /// their menus: Mousepad disables Cut, Copy, Paste and Select All. The moved grab gives the window the
    /// focus back.
    void holdAtFocusedWindow(xcb_timestamp_t time);
    void letGoAfter(std::chrono::milliseconds limit);
    void letGo();
    void endHold();
    /// Reports hot keys that came up while the server kept the events.
    void reportKeysFoundUp();

    void adoptKeyboard();
    void selectRawKeys();
    /// Returns when the server has handled all earlier requests.
    void waitForServer();
    [[nodiscard]] std::optional<Text> text(xcb_keycode_t key, std::uint32_t group, bool withShift);

    MainQueue& queue_;
    DestinationOfKeys destination_;
    X11Connection connection_;
    KeyboardGuard guard_;
    X11EventReader reader_;
    XkbExtension xkb_;
    X11RawKeys rawKeys_;
    X11FocusWait focusWait_;
    X11TakenKeyboard takenKeyboard_;
    std::optional<X11KeyMap> keyMap_;
    std::optional<X11Layout> layout_; ///< Read when first needed.
    bool hasKeyboardChanged_ = false;

    std::vector<Registration> registrations_;
    HotKeyHandle lastHandle_ = 0;
    KeyboardHandler keyboardHandler_;
    HotKeyHandler handler_;
    RawKeyHandler rawHandler_;
    XkbExtension::State keyboardState_; ///< Current while there is a raw handler.

    KeyboardGuard::Hold currentHold_ = 0; ///< 0 once this object has released the keyboard.
    HotKeyHandle heldFor_ = 0;
    xcb_timestamp_t lastPressTime_ = 0;

    std::shared_ptr<const bool> life_ = std::make_shared<const bool>(true); ///< For tasks that outlive this.
};

} // namespace tovrel
