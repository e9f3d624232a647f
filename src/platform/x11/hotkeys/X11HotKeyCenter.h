#pragma once

#include <chrono>
#include <memory>
#include <vector>

#include "platform/HotKeyCenter.h"
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
/// No keystroke is lost between a hot key and the window it opens: from the instant the hot key fires the
/// server keeps every later key event, while the handler runs and until the keyboard focus is where the
/// handler has left it to go. Then the keyboard is let go and the server delivers what it has kept, in order
/// and as if it were typed now. The handler should be brief: while it runs, no program gets a key. A guard
/// lets the keyboard go after 500 ms in all, whatever this thread does.
///
/// While a hot key is down its release is watched for outside of any grab, so it is seen whichever window the
/// key goes to and in whatever order the keys come up. A held key goes on being reported pressed. A key that
/// is down already when its combination is registered counts from its next press on.
///
/// Command is Control, Control is Super, Option is Alt. The Function modifier is left out of account, because
/// keyboards keep it to themselves; Caps Lock, Num Lock and Scroll Lock may be on or off.
class X11HotKeyCenter : public HotKeyCenter, public EventSource {
  public:
    /// Asked before a press is reported and after its handler has returned.
    using DestinationOfKeys = std::function<KeyDestination()>;

    /// The longest the keyboard stays held after a handler has returned, for a window that never gets the
    /// focus. Where it was measured the focus arrived after 3 to 36 ms.
    static constexpr std::chrono::milliseconds longestFocusWait{300};

    /// Connects to `display`, or to $DISPLAY when null; without a server every registration is refused.
    X11HotKeyCenter(MainQueue& queue, DestinationOfKeys destination, const char* display = nullptr);

    /// The outcome comes before this returns.
    [[nodiscard]] HotKeyHandle registerHotKey(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                                              HotKeyIdentifier identifier, Completion completion) override;
    /// The release of a key that is down is not reported any more. When this returns, the server knows.
    void unregisterHotKey(HotKeyHandle handle) override;
    [[nodiscard]] std::optional<HotKeyError> refusal(HotKeyHandle handle) const override;
    void setKeyboardHandler(KeyboardHandler handler) override { keyboardHandler_ = std::move(handler); }
    void setHotKeyHandler(HotKeyHandler handler) override;
    /// The keys are those typed anywhere while the handler is set; they reach their window as well.
    void setRawKeyHandler(RawKeyHandler handler) override;
    /// The focused window does not notice.
    [[nodiscard]] bool takeKeyboard(KeyHandler handler, std::function<void()> onLoss) override;
    void giveKeyboardBack(bool passesKeyOn) override;
    /// An X server keeps no list of the grabs of others: this one is tried, and given back at once.
    [[nodiscard]] bool isSystemShortcut(const Shortcut& shortcut) override;
    [[nodiscard]] std::optional<Text> characterForKeyCode(std::uint32_t keyCode) override;

    [[nodiscard]] int fileDescriptor() const override { return reader_.fileDescriptor(); }
    void dispatch() override;

    /// The server's time of the last press of a hot key, for requests that must tell by which action of the
    /// user they were caused; 0 before the first.
    [[nodiscard]] xcb_timestamp_t lastPressTime() const { return lastPressTime_; }

  private:
    enum class KeyState {
        up,
        down,
        heldBefore, ///< Since before it was registered.
    };
    struct Registration {
        HotKeyHandle handle = 0;
        HotKeyIdentifier identifier;
        std::uint32_t keyCode = 0;
        ModifierFlags modifiers = 0;
        X11HotKeyGrab grab;
        std::optional<HotKeyError> refusal; ///< Of the grab, since the keyboard has changed.
        KeyState state = KeyState::up;
    };

    [[nodiscard]] HotKeyOutcome registered(Registration registration);
    /// What the keyboard makes of a combination at present.
    [[nodiscard]] std::variant<X11HotKeyGrab, HotKeyError> grabFor(std::uint32_t keyCode,
                                                                   ModifierFlags modifiers) const;
    /// Takes the grab; why it cannot be had, else.
    [[nodiscard]] std::optional<HotKeyError> take(const X11HotKeyGrab& grab) const;
    [[nodiscard]] Registration* find(HotKeyHandle handle);

    void handle(const xcb_generic_event_t& event, KeyboardGuard::Hold hold);
    void handleKey(const xcb_key_press_event_t& event, KeyboardGuard::Hold hold);
    void handlePress(const xcb_key_press_event_t& event, KeyboardGuard::Hold hold);
    void handleTakenKey(const xcb_key_press_event_t& event, bool isPress, KeyboardGuard::Hold hold);
    void handleRawKey(const X11RawKeys::Key& key);
    void released(HotKeyHandle handle);
    void report(HotKeyIdentifier identifier, HotKeyEventKind kind);

    /// The grab of a hot key lies on the root window, so the front window is told that it has lost the focus,
    /// and applications disable what needs it: Mousepad its Cut, Copy, Paste and Select All, before anyone
    /// could read its menus. Moved to the window that has the focus anyway, the grab gives it back.
    void holdAtFocusedWindow(xcb_timestamp_t time);
    void letGoAfter(std::chrono::milliseconds limit);
    void letGo();
    void endHold();
    /// Reports hot keys that came up while the server kept the events.
    void reportKeysFoundUp();

    void adoptKeyboard();
    void selectRawKeys();
    /// Returns when the server has done everything that it was asked.
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
    XkbExtension::State keyboardState_; ///< Kept up to date while there is a raw handler.

    KeyboardGuard::Hold currentHold_ = 0; ///< 0 once this object has let the keyboard go.
    HotKeyHandle heldFor_ = 0;
    xcb_timestamp_t lastPressTime_ = 0;

    std::shared_ptr<const bool> life_ = std::make_shared<const bool>(true); ///< For tasks that outlive this.
};

} // namespace tovrel
