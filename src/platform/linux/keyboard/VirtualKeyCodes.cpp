#include "platform/linux/keyboard/VirtualKeyCodes.h"

#include <algorithm>
#include <array>
#include <iterator>

#include <linux/input-event-codes.h>

namespace tovrel {
namespace {

/// Marks a virtual key code without counterpart; no key has this code.
constexpr EvdevKey none = KEY_RESERVED;

/// The keys by virtual key code; the number after each eight keys is the code of the first of them.
constexpr std::array<EvdevKey, 128> keys{
    KEY_A,          KEY_S,          KEY_D,          KEY_F,
    KEY_H,          KEY_G,          KEY_Z,          KEY_X, // 0
    KEY_C,          KEY_V,          KEY_102ND,      KEY_B,
    KEY_Q,          KEY_W,          KEY_E,          KEY_R, // 8
    KEY_Y,          KEY_T,          KEY_1,          KEY_2,
    KEY_3,          KEY_4,          KEY_6,          KEY_5, // 16
    KEY_EQUAL,      KEY_9,          KEY_7,          KEY_MINUS,
    KEY_8,          KEY_0,          KEY_RIGHTBRACE, KEY_O, // 24
    KEY_U,          KEY_LEFTBRACE,  KEY_I,          KEY_P,
    KEY_ENTER,      KEY_L,          KEY_J,          KEY_APOSTROPHE, // 32
    KEY_K,          KEY_SEMICOLON,  KEY_BACKSLASH,  KEY_COMMA,
    KEY_SLASH,      KEY_N,          KEY_M,          KEY_DOT, // 40
    KEY_TAB,        KEY_SPACE,      KEY_GRAVE,      KEY_BACKSPACE,
    none,           KEY_ESC,        KEY_RIGHTCTRL,  KEY_LEFTCTRL, // 48
    KEY_LEFTSHIFT,  KEY_CAPSLOCK,   KEY_LEFTALT,    KEY_LEFTMETA,
    KEY_RIGHTSHIFT, KEY_RIGHTALT,   KEY_RIGHTMETA,  none, // 56
    KEY_F17,        KEY_KPDOT,      none,           KEY_KPASTERISK,
    none,           KEY_KPPLUS,     none,           KEY_NUMLOCK, // 64
    KEY_VOLUMEUP,   KEY_VOLUMEDOWN, KEY_MUTE,       KEY_KPSLASH,
    KEY_KPENTER,    none,           KEY_KPMINUS,    KEY_F18, // 72
    KEY_F19,        KEY_KPEQUAL,    KEY_KP0,        KEY_KP1,
    KEY_KP2,        KEY_KP3,        KEY_KP4,        KEY_KP5, // 80
    KEY_KP6,        KEY_KP7,        KEY_F20,        KEY_KP8,
    KEY_KP9,        KEY_YEN,        KEY_RO,         KEY_KPCOMMA, // 88
    KEY_F5,         KEY_F6,         KEY_F7,         KEY_F3,
    KEY_F8,         KEY_F9,         KEY_HANJA,      KEY_F11, // 96
    KEY_HANGEUL,    KEY_F13,        KEY_F16,        KEY_F14,
    none,           KEY_F10,        KEY_COMPOSE,    KEY_F12, // 104
    none,           KEY_F15,        KEY_INSERT,     KEY_HOME,
    KEY_PAGEUP,     KEY_DELETE,     KEY_F4,         KEY_END, // 112
    KEY_F2,         KEY_PAGEDOWN,   KEY_F1,         KEY_LEFT,
    KEY_RIGHT,      KEY_DOWN,       KEY_UP,         none, // 120
};

constexpr std::uint32_t xkbOffset = 8;

} // namespace

std::optional<EvdevKey> evdevKey(std::uint32_t virtualKeyCode) {
    return virtualKeyCode < keys.size() && keys[virtualKeyCode] != none ? std::optional(keys[virtualKeyCode])
                                                                        : std::nullopt;
}

std::optional<std::uint32_t> virtualKeyCode(EvdevKey key) {
    const auto* const found = std::find(keys.begin(), keys.end(), key);
    return key != none && found != keys.end()
               ? std::optional(static_cast<std::uint32_t>(std::distance(keys.begin(), found)))
               : std::nullopt;
}

std::optional<std::uint8_t> xkbKeyCode(std::uint32_t virtualKeyCode) {
    const auto key = evdevKey(virtualKeyCode);
    return key ? std::optional(static_cast<std::uint8_t>(*key + xkbOffset)) : std::nullopt;
}

std::optional<std::uint32_t> virtualKeyCodeOfXkb(std::uint32_t xkbKeyCode) {
    constexpr std::uint32_t last = 255;
    return xkbKeyCode >= xkbOffset && xkbKeyCode <= last
               ? virtualKeyCode(static_cast<EvdevKey>(xkbKeyCode - xkbOffset))
               : std::nullopt;
}

} // namespace tovrel
