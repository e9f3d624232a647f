#include "KeyPlayer.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include <xcb/xtest.h>

#include "platform/x11/server/XcbOwned.h"

namespace tovrel {
namespace {

using KeySymbol = std::pair<const char*, xcb_keysym_t>;

constexpr KeySymbol namedKeys[] = {{"ctrl", 0xFFE3},   {"shift", 0xFFE1},  {"alt", 0xFFE9},
                                   {"Return", 0xFF0D}, {"Escape", 0xFF1B}, {"BackSpace", 0xFF08},
                                   {"Down", 0xFF54},   {"Up", 0xFF52},     {"space", 0x20}};

bool consumePrefix(std::string_view& word, std::string_view prefix) {
    if (!word.starts_with(prefix)) {
        return false;
    }
    word.remove_prefix(prefix.size());
    return true;
}

} // namespace

KeyPlayer::KeyPlayer(X11Connection& connection) : connection_(connection) {
    if (!connection_.isOpen()) {
        return;
    }
    const xcb_setup_t* setup = xcb_get_setup(connection_.handle());
    const int first = setup->min_keycode;
    const int count = setup->max_keycode - first + 1;
    const XcbOwned<xcb_get_keyboard_mapping_reply_t> reply(xcb_get_keyboard_mapping_reply(
        connection_.handle(),
        xcb_get_keyboard_mapping(connection_.handle(), setup->min_keycode, static_cast<std::uint8_t>(count)),
        nullptr));
    if (!reply) {
        return;
    }
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    for (int index = count - 1; index >= 0; --index) {
        const xcb_keysym_t symbol = symbols[static_cast<std::ptrdiff_t>(index) * reply->keysyms_per_keycode];
        const auto key = static_cast<xcb_keycode_t>(first + index);
        if (symbol > 0x20 && symbol < 0x7F) {
            keys_[std::string(1, static_cast<char>(symbol))] = key;
        }
        for (const auto& [name, named] : namedKeys) {
            if (symbol == named) {
                keys_[name] = key;
            }
        }
    }
}

bool KeyPlayer::play(const std::vector<std::string>& words) {
    return std::all_of(words.begin(), words.end(), [this](const std::string& word) { return play(word); });
}

void KeyPlayer::send() {
    xcb_flush(connection_.handle());
}

bool KeyPlayer::play(std::string_view word) {
    const bool onlyDown = consumePrefix(word, "down:");
    const bool onlyUp = !onlyDown && consumePrefix(word, "up:");
    std::vector<xcb_keycode_t> chord;
    while (!word.empty()) {
        const std::size_t end = std::min(word.find('+'), word.size());
        const auto found = keys_.find(std::string(word.substr(0, end)));
        if (found == keys_.end()) {
            return false;
        }
        chord.push_back(found->second);
        word.remove_prefix(std::min(end + 1, word.size()));
    }
    if (!onlyUp) {
        std::for_each(chord.begin(), chord.end(), [this](xcb_keycode_t key) { press(key, true); });
    }
    if (!onlyDown) {
        std::for_each(chord.rbegin(), chord.rend(), [this](xcb_keycode_t key) { press(key, false); });
    }
    return true;
}

void KeyPlayer::press(xcb_keycode_t key, bool isPress) {
    xcb_test_fake_input(connection_.handle(), isPress ? XCB_KEY_PRESS : XCB_KEY_RELEASE, key,
                        XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
}

} // namespace tovrel
