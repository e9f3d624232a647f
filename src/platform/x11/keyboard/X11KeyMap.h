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

/// One bit a key of the core protocol.
using X11KeySet = std::bitset<256>;

/// Which keys an X server has and which modifiers they are, as it was when read. Shift, Caps Lock and Control
/// are modifiers by name in the protocol; Alt, Super, Num Lock and Scroll Lock are whichever modifier carries
/// a key of that meaning.
class X11KeyMap {
  public:
    /// Absent when the server does not answer.
    [[nodiscard]] static std::optional<X11KeyMap> read(xcb_connection_t* connection);

    /// Whether the keyboard gives the key any meaning.
    [[nodiscard]] bool hasKey(xcb_keycode_t key) const;

    /// The modifiers that stand for these: Command is Control, Control is Super, Option is Alt, Shift is
    /// Shift. Other flags are dropped. Absent when the keyboard lacks one of them.
    [[nodiscard]] std::optional<X11Modifiers> modifiersFor(ModifierFlags flags) const;
    /// The other way round, with Caps Lock.
    [[nodiscard]] ModifierFlags flagsFor(X11Modifiers modifiers) const;

    /// The lock modifiers that exist: Caps Lock, Num Lock, Scroll Lock.
    [[nodiscard]] X11Modifiers locks() const { return XCB_MOD_MASK_LOCK | numLock_ | scrollLock_; }
    /// All sets of locks that can be on.
    [[nodiscard]] std::vector<X11Modifiers> lockCombinations() const;

    /// The modifiers this key is; none for most keys.
    [[nodiscard]] X11Modifiers modifiersOfKey(xcb_keycode_t key) const;
    /// The keys that are this one modifier, the usual one first: the key on the left where there are two.
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

/// The keys that are down as the server has them at the moment; absent when it does not answer.
[[nodiscard]] std::optional<X11KeySet> keysDown(xcb_connection_t* connection);

/// Reads the protocol's form of a key set, 32 bytes with the lowest key in the lowest bit.
[[nodiscard]] X11KeySet keySet(const std::uint8_t* bytes);

} // namespace tovrel
