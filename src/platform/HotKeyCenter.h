#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <variant>

#include "model/KeyEvent.h"
#include "model/Shortcut.h"
#include "support/Text.h"

namespace tovrel {

/// Names a hot key for whoever registers it: each of its events carries it.
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

/// Names one registration, from the moment it is asked for; no two have the same.
using HotKeyHandle = std::uint64_t;

/// Why a combination cannot be had. The numbers are those that the line on standard output shows.
enum class HotKeyError : std::int32_t {
    takenByAnother = 10,    ///< Another program has it.
    noHotKeys = -1,         ///< There is no display, or one without what hot keys need.
    noSuchKey = -2,         ///< The keyboard has no key of that code.
    noSuchModifier = -3,    ///< The keyboard has no key for one of the modifiers.
    alreadyRegistered = -4, ///< This process has it already.
    refused = -5,           ///< For a reason that says nothing to anyone.
};

/// A registration that succeeded.
struct HotKeyRegistered {
    /// What to press, in the desktop's own words for the user, where the desktop has chosen the combination
    /// or lets the user change it. Absent where it is the combination that was asked for.
    std::optional<Text> desktopTrigger;

    friend bool operator==(const HotKeyRegistered&, const HotKeyRegistered&) = default;
};

using HotKeyOutcome = std::variant<HotKeyRegistered, HotKeyError>;

/// System-wide hot keys: combinations that reach this process whatever application is in front.
class HotKeyCenter {
  public:
    /// Whether the event was for the handler; others are passed on.
    using HotKeyHandler = std::function<bool(const HotKeyEvent&)>;
    using Completion = std::function<void(const HotKeyOutcome&)>;
    using RawKeyHandler = std::function<bool(const KeyEvent&)>;
    using KeyboardHandler = std::function<void()>;
    using KeyHandler = std::function<void(const KeyEvent&)>;

    virtual ~HotKeyCenter() = default;

    /// Asks for the combination; `carbonModifiers` as in Shortcut. The completion is called on the main
    /// thread with the outcome, once: before this returns where the desktop answers at once, else later as a
    /// task of the main queue, and never after the registration was given back. Callers must stand both
    /// orders. No event comes before a success, and nothing stays taken of a refused combination.
    [[nodiscard]] virtual HotKeyHandle registerHotKey(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                                                      HotKeyIdentifier identifier, Completion completion) = 0;

    /// Gives the combination back; one that is still being asked for is not taken any more, whatever the
    /// desktop answers. A handle that is not registered is ignored.
    virtual void unregisterHotKey(HotKeyHandle handle) = 0;

    /// Why a registered combination does not fire although it did once: the keyboard is another one since.
    /// Absent while it fires, and for a handle that is not registered.
    [[nodiscard]] virtual std::optional<HotKeyError> refusal(HotKeyHandle handle) const = 0;

    /// From now on the handler is called when the keyboard has changed, so that other combinations may be had
    /// than before; an empty one ends that.
    virtual void setKeyboardHandler(KeyboardHandler handler) = 0;

    /// From now on presses and releases of registered combinations go to the handler; an empty one ends that.
    /// The release is reported also when the modifiers were released first.
    virtual void setHotKeyHandler(HotKeyHandler handler) = 0;

    /// From now on every key event that reaches this process while one of its menus is open goes to the
    /// handler; an empty one ends that.
    virtual void setRawKeyHandler(RawKeyHandler handler) = 0;

    /// From now on every key goes to the handler and to nobody else, also what other programs and this one
    /// have as hot keys. That ends with `giveKeyboardBack`, with the window that has the focus now, and when
    /// a key has waited for 500 ms to be handled; only then `onLoss` is called. False, and nothing changes,
    /// when another program has the keyboard or it is taken already.
    [[nodiscard]] virtual bool takeKeyboard(KeyHandler handler, std::function<void()> onLoss) = 0;

    /// Without effect unless the keyboard is taken. The key that is being handled goes to the focused window
    /// after all if `passesKeyOn`. Others that have been typed since do so in any case.
    virtual void giveKeyboardBack(bool passesKeyOn) = 0;

    /// Whether the desktop or another program uses the combination, as far as that can be told. A combination
    /// registered here is not one of those.
    [[nodiscard]] virtual bool isSystemShortcut(const Shortcut& shortcut) = 0;

    /// What the current layout types for the key without modifiers; absent when that is nothing.
    [[nodiscard]] virtual std::optional<Text> characterForKeyCode(std::uint32_t keyCode) = 0;
};

} // namespace tovrel
