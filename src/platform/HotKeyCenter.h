#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <variant>

#include "model/KeyEvent.h"
#include "model/Shortcut.h"
#include "support/Text.h"

namespace tovrel {

/// By what a registered hot key is known to whoever registered it.
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

/// Names one successful registration; no two have the same.
using HotKeyHandle = std::uint64_t;
/// Why a combination was refused, as the platform numbers its errors.
using HotKeyError = std::int32_t;

/// System-wide hot keys: combinations that reach this process whatever application is in front.
class HotKeyCenter {
  public:
    /// Whether the event was for the handler; others are passed on.
    using HotKeyHandler = std::function<bool(const HotKeyEvent&)>;
    using RawKeyHandler = std::function<bool(const KeyEvent&)>;

    virtual ~HotKeyCenter() = default;

    /// Takes the combination for this process; `carbonModifiers` as in Shortcut. Refused, for example, when
    /// another program has it, or when no key of the keyboard has the code. Nothing stays taken of a refused
    /// one.
    [[nodiscard]] virtual std::variant<HotKeyHandle, HotKeyError>
    registerHotKey(std::uint32_t keyCode, std::uint32_t carbonModifiers, HotKeyIdentifier identifier) = 0;

    /// Gives the combination back. A handle that is not registered is ignored.
    virtual void unregisterHotKey(HotKeyHandle handle) = 0;

    /// From now on presses and releases of registered combinations go to the handler; an empty one ends that.
    /// The release is reported also when the modifiers were released first.
    virtual void setHotKeyHandler(HotKeyHandler handler) = 0;

    /// From now on every key event that reaches this process while one of its menus is open goes to the
    /// handler; an empty one ends that.
    virtual void setRawKeyHandler(RawKeyHandler handler) = 0;

    /// Whether the desktop or another program uses the combination, as far as that can be told. A combination
    /// registered here is not one of those.
    [[nodiscard]] virtual bool isSystemShortcut(const Shortcut& shortcut) = 0;

    /// What the current layout types for the key without modifiers; absent when that is nothing.
    [[nodiscard]] virtual std::optional<Text> characterForKeyCode(std::uint32_t keyCode) = 0;
};

} // namespace tovrel
