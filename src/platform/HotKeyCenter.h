#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <variant>

#include "model/KeyEvent.h"
#include "model/Shortcut.h"
#include "support/Text.h"

namespace tovrel {

/// Identifies a hot key to the module that registered it; each event of the hot key carries it.
struct HotKeyIdentifier {
    std::uint32_t signature = 0; ///< Four characters that name the registering module.
    std::uint32_t id = 0;

    friend bool operator==(const HotKeyIdentifier&, const HotKeyIdentifier&) = default;
};

enum class HotKeyEventKind { pressed, released };

/// A registered combination went down or up. A key that is held may be reported pressed again and again.
struct HotKeyEvent {
    HotKeyIdentifier identifier;
    HotKeyEventKind kind = HotKeyEventKind::pressed;
};

/// Identifies one registration from the moment it is asked for; it is never reused.
using HotKeyHandle = std::uint64_t;

/// Why a combination cannot be registered. The line on standard output shows these numbers.
enum class HotKeyError : std::int32_t {
    takenByAnother = 10,    ///< Another program has it.
    noHotKeys = -1,         ///< There is no display, or one without what hot keys need.
    noSuchKey = -2,         ///< The keyboard has no key of that code.
    noSuchModifier = -3,    ///< The keyboard has no key for one of the modifiers.
    alreadyRegistered = -4, ///< This process has it already.
    refused = -5,           ///< For a reason that would not help the user.
};

/// A registration that succeeded.
struct HotKeyRegistered {
    /// The desktop's own words for what the user must press, where the desktop has chosen the combination or
    /// lets the user change it. Absent where the combination asked for applies.
    std::optional<Text> desktopTrigger;

    friend bool operator==(const HotKeyRegistered&, const HotKeyRegistered&) = default;
};

using HotKeyOutcome = std::variant<HotKeyRegistered, HotKeyError>;

/// System-wide hot keys: combinations that reach this process whatever application is in front.
class HotKeyCenter {
  public:
    /// Returns whether the event was for the handler; other events are passed on.
    using HotKeyHandler = std::function<bool(const HotKeyEvent&)>;
    using Completion = std::function<void(const HotKeyOutcome&)>;
    using RawKeyHandler = std::function<bool(const KeyEvent&)>;
    using KeyboardHandler = std::function<void()>;
    using KeyHandler = std::function<void(const KeyEvent&)>;

    virtual ~HotKeyCenter() = default;

    /// Asks for the combination; `carbonModifiers` as in Shortcut. The completion is called on the main
    /// thread with the outcome, once: before this returns where the desktop answers at once, else later as a
    /// task of the main queue, and never after the registration was given back. Callers must handle both. No
    /// event comes before a success, and a refused combination leaves nothing registered.
    [[nodiscard]] virtual HotKeyHandle registerHotKey(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                                                      HotKeyIdentifier identifier, Completion completion) = 0;

    /// Gives the combination back; a registration that still waits for its answer is cancelled, whatever the
    /// desktop answers. An unknown handle is ignored.
    virtual void unregisterHotKey(HotKeyHandle handle) = 0;

    /// Why a registered combination no longer fires since the keyboard has changed. Absent while it fires,
    /// and for a handle that is not registered.
    [[nodiscard]] virtual std::optional<HotKeyError> refusal(HotKeyHandle handle) const = 0;

    /// Sets the handler that is called when the keyboard has changed, so that other combinations may be
    /// available than before. An empty handler removes it.
    virtual void setKeyboardHandler(KeyboardHandler handler) = 0;

    /// Sets the handler that gets presses and releases of registered combinations; an empty handler removes
    /// it. The release is reported even if the modifiers were released first.
    virtual void setHotKeyHandler(HotKeyHandler handler) = 0;

    /// Sets the handler that gets every key event that reaches this process while one of its menus is open.
    /// An empty handler removes it.
    virtual void setRawKeyHandler(RawKeyHandler handler) = 0;

    /// Sends every key to the handler alone, even the hot keys of this and other programs. That ends with
    /// `giveKeyboardBack`, with the window that has the focus now, and when a key has waited for 500 ms to be
    /// handled; only in the last case `onLoss` is called. Returns false and changes nothing when another
    /// program has the keyboard or it is taken already.
    [[nodiscard]] virtual bool takeKeyboard(KeyHandler handler, std::function<void()> onLoss) = 0;

    /// Ends `takeKeyboard`; has no effect unless the keyboard is taken. If `passesKeyOn`, the key that is
    /// being handled goes to the focused window. Keys typed since then go there in any case.
    virtual void giveKeyboardBack(bool passesKeyOn) = 0;

    /// Whether the desktop or another program uses the combination, as far as that can be known. A
    /// combination registered here does not count.
    [[nodiscard]] virtual bool isSystemShortcut(const Shortcut& shortcut) = 0;

    /// What the current layout types for the key without modifiers; absent when that is nothing.
    [[nodiscard]] virtual std::optional<Text> characterForKeyCode(std::uint32_t keyCode) = 0;
};

} // namespace tovrel
