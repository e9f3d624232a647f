#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <optional>
#include <vector>

#include <xcb/xcb.h>

#include "model/ModifierFlags.h"

namespace tovrel {

/// A set of the eight modifiers of the core protocol, XCB_MOD_MASK_….
using X11Modifiers = std::uint16_t;

/// A set of keys of the core protocol, one bit each.
using X11KeySet = std::bitset<256>;

/// The keys of an X server and their modifiers at the time of reading. The protocol names the modifiers
/// Shift, Caps Lock and Control; Alt, Super, Num Lock and Scroll Lock are the modifiers that have a key with
/// that meaning.
class X11KeyMap {
  public:
    /// Reads the map; absent when the server does not answer.
    [[nodiscard]] static std::optional<X11KeyMap> read(xcb_connection_t* connection);

    /// Whether the keyboard gives the key any meaning.
    [[nodiscard]] bool hasKey(xcb_keycode_t key) const;

    /// The modifiers for these flags: Command is Control, Control is Super, Option is Alt, Shift is Shift.
    /// Other flags are dropped. Absent when the keyboard lacks one of the modifiers.
    [[nodiscard]] std::optional<X11Modifiers> modifiersFor(ModifierFlags flags) const;
    /// The flags for these modifiers, including Caps Lock.
    [[nodiscard]] ModifierFlags flagsFor(X11Modifiers modifiers) const;

    /// The lock modifiers that exist: Caps Lock, Num Lock, Scroll Lock.
    [[nodiscard]] X11Modifiers locks() const { return XCB_MOD_MASK_LOCK | numLock_ | scrollLock_; }
    /// All combinations of locks that can be on.
    [[nodiscard]] std::vector<X11Modifiers> lockCombinations() const;

    /// The modifiers that this key sets; none for most keys.
    [[nodiscard]] X11Modifiers modifiersOfKey(xcb_keycode_t key) const;
    /// The keys that set this modifier, the usual one first: the left one of two.
    [[nodiscard]] const std::vector<xcb_keycode_t>& keysOfModifier(X11Modifiers modifier) const;

  private:
    X11KeyMap() = default;
    void findModifiers();
    [[nodiscard]] X11Modifiers modifierWithKeysym(xcb_keysym_t left, xcb_keysym_t right) const;
    [[nodiscard]] bool means(xcb_keycode_t key, xcb_keysym_t keysym) const;

    xcb_keycode_t firstKey_ = 0;
    std::size_t keysymsOfKey_ = 0;
    std::vector<xcb_keysym_t> keysyms_;
    std::array<std::vector<xcb_keycode_t>, 8> keysOfModifiers_; ///< By number of the modifier.
    X11Modifiers alt_ = 0;
    X11Modifiers super_ = 0;
    X11Modifiers numLock_ = 0;
    X11Modifiers scrollLock_ = 0;
};

/// The keys that the server considers down at the moment; absent when it does not answer.
[[nodiscard]] std::optional<X11KeySet> keysDown(xcb_connection_t* connection);

/// Reads the protocol's form of a key set, 32 bytes with the lowest key in the lowest bit.
[[nodiscard]] X11KeySet keySet(const std::uint8_t* bytes);

} // namespace tovrel
