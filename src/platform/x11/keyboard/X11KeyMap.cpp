#include "platform/x11/keyboard/X11KeyMap.h"

#include <algorithm>

#include <xkbcommon/xkbcommon-keysyms.h>

#include "platform/x11/server/XcbOwned.h"

namespace tovrel {

std::optional<X11KeyMap> X11KeyMap::read(xcb_connection_t* connection) {
    const xcb_setup_t* setup = xcb_get_setup(connection);
    if (setup == nullptr || xcb_connection_has_error(connection) != 0) {
        return std::nullopt;
    }
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto keysymsCookie = xcb_get_keyboard_mapping(connection, setup->min_keycode, count);
    const auto modifiersCookie = xcb_get_modifier_mapping(connection);
    const XcbOwned<xcb_get_keyboard_mapping_reply_t> keysyms(
        xcb_get_keyboard_mapping_reply(connection, keysymsCookie, nullptr));
    const XcbOwned<xcb_get_modifier_mapping_reply_t> modifiers(
        xcb_get_modifier_mapping_reply(connection, modifiersCookie, nullptr));
    if (!keysyms || !modifiers) {
        return std::nullopt;
    }
    X11KeyMap map;
    map.firstKey_ = setup->min_keycode;
    map.keysymsOfKey_ = keysyms->keysyms_per_keycode;
    const xcb_keysym_t* firstKeysym = xcb_get_keyboard_mapping_keysyms(keysyms.get());
    map.keysyms_.assign(firstKeysym, firstKeysym + xcb_get_keyboard_mapping_keysyms_length(keysyms.get()));
    const xcb_keycode_t* key = xcb_get_modifier_mapping_keycodes(modifiers.get());
    for (std::vector<xcb_keycode_t>& keys : map.keysOfModifiers_) {
        std::copy_if(key, key + modifiers->keycodes_per_modifier, std::back_inserter(keys),
                     [](xcb_keycode_t code) { return code != 0; });
        key += modifiers->keycodes_per_modifier;
    }
    map.findModifiers();
    return map;
}

bool X11KeyMap::hasKey(xcb_keycode_t key) const {
    if (key < firstKey_) {
        return false;
    }
    const std::size_t first = (key - std::size_t{firstKey_}) * keysymsOfKey_;
    const auto begin = keysyms_.begin() + static_cast<std::ptrdiff_t>(std::min(first, keysyms_.size()));
    const auto end =
        keysyms_.begin() + static_cast<std::ptrdiff_t>(std::min(first + keysymsOfKey_, keysyms_.size()));
    return std::any_of(begin, end, [](xcb_keysym_t keysym) { return keysym != XCB_NO_SYMBOL; });
}

std::optional<X11Modifiers> X11KeyMap::modifiersFor(ModifierFlags flags) const {
    X11Modifiers modifiers = 0;
    if ((flags & modifier_flags::shift) != 0) {
        modifiers |= XCB_MOD_MASK_SHIFT;
    }
    if ((flags & modifier_flags::command) != 0) {
        modifiers |= XCB_MOD_MASK_CONTROL;
    }
    if ((flags & modifier_flags::option) != 0) {
        if (alt_ == 0) {
            return std::nullopt;
        }
        modifiers |= alt_;
    }
    if ((flags & modifier_flags::control) != 0) {
        if (super_ == 0) {
            return std::nullopt;
        }
        modifiers |= super_;
    }
    return modifiers;
}

ModifierFlags X11KeyMap::flagsFor(X11Modifiers modifiers) const {
    ModifierFlags flags = 0;
    const auto add = [&](X11Modifiers modifier, ModifierFlags flag) {
        flags |= (modifiers & modifier) != 0 ? flag : 0;
    };
    add(XCB_MOD_MASK_LOCK, modifier_flags::capsLock);
    add(XCB_MOD_MASK_SHIFT, modifier_flags::shift);
    add(XCB_MOD_MASK_CONTROL, modifier_flags::command);
    add(alt_, modifier_flags::option);
    add(super_, modifier_flags::control);
    return flags;
}

std::vector<X11Modifiers> X11KeyMap::lockCombinations() const {
    std::vector<X11Modifiers> combinations;
    const X11Modifiers all = locks();
    for (X11Modifiers combination = 0; combination <= all; ++combination) {
        if ((combination & ~all) == 0) {
            combinations.push_back(combination);
        }
    }
    return combinations;
}

X11Modifiers X11KeyMap::modifiersOfKey(xcb_keycode_t key) const {
    X11Modifiers modifiers = 0;
    for (std::size_t number = 0; number < keysOfModifiers_.size(); ++number) {
        const auto& keys = keysOfModifiers_.at(number);
        if (std::find(keys.begin(), keys.end(), key) != keys.end()) {
            modifiers = static_cast<X11Modifiers>(modifiers | (1U << number));
        }
    }
    return modifiers;
}

const std::vector<xcb_keycode_t>& X11KeyMap::keysOfModifier(X11Modifiers modifier) const {
    std::size_t number = 0;
    while (number + 1 < keysOfModifiers_.size() && (modifier >> number & 1U) == 0) {
        ++number;
    }
    return keysOfModifiers_.at(number);
}

void X11KeyMap::findModifiers() {
    alt_ = modifierWithKeysym(XKB_KEY_Alt_L, XKB_KEY_Alt_R);
    if (alt_ == 0) {
        alt_ = modifierWithKeysym(XKB_KEY_Meta_L, XKB_KEY_Meta_R);
    }
    super_ = modifierWithKeysym(XKB_KEY_Super_L, XKB_KEY_Super_R);
    // A lock that shares its modifier with Alt or Super cannot be told from it, so it does not count as a
    // lock.
    const auto held = static_cast<X11Modifiers>(alt_ | super_);
    numLock_ = modifierWithKeysym(XKB_KEY_Num_Lock, XKB_KEY_Num_Lock) & static_cast<X11Modifiers>(~held);
    scrollLock_ =
        modifierWithKeysym(XKB_KEY_Scroll_Lock, XKB_KEY_Scroll_Lock) & static_cast<X11Modifiers>(~held);
}

X11Modifiers X11KeyMap::modifierWithKeysym(xcb_keysym_t left, xcb_keysym_t right) const {
    // The first three have a fixed meaning.
    for (std::size_t number = 3; number < keysOfModifiers_.size(); ++number) {
        const auto& keys = keysOfModifiers_.at(number);
        if (std::any_of(keys.begin(), keys.end(),
                        [&](xcb_keycode_t key) { return means(key, left) || means(key, right); })) {
            return static_cast<X11Modifiers>(1U << number);
        }
    }
    return 0;
}

bool X11KeyMap::means(xcb_keycode_t key, xcb_keysym_t keysym) const {
    for (std::size_t level = 0; key >= firstKey_ && level < keysymsOfKey_; ++level) {
        const std::size_t place = (key - std::size_t{firstKey_}) * keysymsOfKey_ + level;
        if (place < keysyms_.size() && keysyms_[place] == keysym) {
            return true;
        }
    }
    return false;
}

std::optional<X11KeySet> keysDown(xcb_connection_t* connection) {
    const XcbOwned<xcb_query_keymap_reply_t> reply(
        xcb_query_keymap_reply(connection, xcb_query_keymap(connection), nullptr));
    return reply ? std::optional(keySet(&reply->keys[0])) : std::nullopt;
}

X11KeySet keySet(const std::uint8_t* bytes) {
    X11KeySet set;
    for (std::size_t key = 0; key < set.size(); ++key) {
        set[key] = (bytes[key / 8] >> (key % 8) & 1U) != 0;
    }
    return set;
}

} // namespace tovrel
