#pragma once

#include <cstdint>
#include <optional>

namespace tovrel {

/// A key by its position, in the numbering of the kernel's input events (linux/input-event-codes.h).
using EvdevKey = std::uint16_t;

/// Virtual key codes (0 to 127) name positions of a keyboard with the US layout, whatever the current layout:
/// 35 is the key of P. The kernel's codes do so too, and this is the only table between the two; it is
/// one-to-one. Its choices where the keyboards differ:
/// - the modifier keys follow the modifiers: the key of Command is Control, of Control Super, of Option Alt;
/// - Help is Insert, which has its place on today's keyboards; keypad Clear is Num Lock for the same reason;
/// - the Function key has no counterpart: keyboards keep it to themselves.
/// Absent for a code without counterpart.
[[nodiscard]] std::optional<EvdevKey> evdevKey(std::uint32_t virtualKeyCode);
[[nodiscard]] std::optional<std::uint32_t> virtualKeyCode(EvdevKey key);

/// The key's number on displays, which number keys from 8 on as XKB keymaps do, and in toolkits, which use
/// the displays' numbers. Numbers above 255 are left out, because not every display has them.
[[nodiscard]] std::optional<std::uint8_t> xkbKeyCode(std::uint32_t virtualKeyCode);
[[nodiscard]] std::optional<std::uint32_t> virtualKeyCodeOfXkb(std::uint32_t xkbKeyCode);

} // namespace tovrel
