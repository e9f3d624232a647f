#include <algorithm>
#include <array>
#include <iterator>
#include <stdexcept>
#include <vector>

#include "platform/contract/HotKeyCenterContract.h"
#include "platform/contract/KeyEventPosterContract.h"
#include "platform/linux/TestLoop.h"
#include "platform/linux/keyboard/VirtualKeyCodes.h"
#include "platform/x11/X11Desktop.h"
#include "platform/x11/X11TestClient.h"
#include "platform/x11/hotkeys/X11HotKeyCenter.h"
#include "platform/x11/keyboard/X11KeyEventPoster.h"
#include "platform/x11/server/XcbOwned.h"

namespace tovrel {
namespace {

/// A modifier, the key that it is, and what it is in the protocol.
struct Modifier {
    ModifierFlags flag;
    std::uint32_t keyCode;
    std::uint16_t mask;
};
constexpr std::array modifiers{Modifier{modifier_flags::command, 55, XCB_MOD_MASK_CONTROL},
                               Modifier{modifier_flags::shift, 56, XCB_MOD_MASK_SHIFT},
                               Modifier{modifier_flags::option, 58, XCB_MOD_MASK_1},
                               Modifier{modifier_flags::control, 59, XCB_MOD_MASK_4}};

ModifierFlags flagsOf(std::uint16_t mask) {
    ModifierFlags flags = 0;
    for (const Modifier& modifier : modifiers) {
        flags |= (mask & modifier.mask) != 0 ? modifier.flag : 0;
    }
    return flags;
}

std::vector<Modifier> modifiersOf(ModifierFlags flags) {
    std::vector<Modifier> held;
    std::copy_if(modifiers.begin(), modifiers.end(), std::back_inserter(held),
                 [&](const Modifier& modifier) { return (flags & modifier.flag) != 0; });
    return held;
}

/// A server with a focused window of another program, and a user.
class X11KeyboardRig {
  public:
    X11KeyboardRig() {
        loop_.watch(front_);
        front_.map();
        loop_.runUntil([&] { return front_.isMapped(); });
        front_.focus();
        if (!loop_.runUntil([&] { return front_.hasFocus(); })) {
            throw std::runtime_error("no window has the focus");
        }
    }

    template <typename Condition>
    bool until(Condition condition) {
        return loop_.runUntil(condition);
    }

  protected:
    X11Desktop desktop_;
    TestLoop loop_;
    X11TestClient front_{desktop_.display()};
    X11TestKeyboard user_{desktop_.display(), X11TestKeyboard::Kind::real};
};

class X11HotKeyCenterRig : public X11KeyboardRig {
  public:
    X11HotKeyCenterRig() { loop_.watch(center_); }

    HotKeyCenter& center() { return center_; }

    void press(const Shortcut& shortcut) {
        for (const Modifier& modifier : modifiersOf(modifierFlags(shortcut.carbonModifiers))) {
            user_.press(modifier.keyCode);
        }
        user_.press(static_cast<std::uint32_t>(shortcut.carbonKeyCode));
        user_.flush();
    }
    void release(const Shortcut& shortcut) {
        user_.release(static_cast<std::uint32_t>(shortcut.carbonKeyCode));
        releaseModifiers(shortcut);
    }
    void releaseModifiersFirst(const Shortcut& shortcut) {
        releaseModifiers(shortcut);
        user_.release(static_cast<std::uint32_t>(shortcut.carbonKeyCode));
        user_.flush();
    }

    void takeByAnother(const Shortcut& shortcut) {
        xcb_grab_key(another_.handle(), 0, another_.root(), maskOf(shortcut), keyOf(shortcut),
                     XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        waitForServer();
    }
    void giveBackByAnother(const Shortcut& shortcut) {
        xcb_ungrab_key(another_.handle(), keyOf(shortcut), another_.root(), maskOf(shortcut));
        waitForServer();
    }

    /// Menus take the keyboard.
    void openMenu() {
        const XcbOwned<xcb_grab_keyboard_reply_t> grab(
            xcb_grab_keyboard_reply(another_.handle(),
                                    xcb_grab_keyboard(another_.handle(), 0, another_.root(), XCB_CURRENT_TIME,
                                                      XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                                    nullptr));
        EXPECT_EQ(grab->status, XCB_GRAB_STATUS_SUCCESS);
    }

    std::size_t passedOn(std::uint32_t keyCode) {
        const auto presses = front_.presses();
        return static_cast<std::size_t>(std::count(presses.begin(), presses.end(), keyCode));
    }
    /// What is typed now comes to the window behind once the keyboard is let go.
    void outwait() {
        constexpr std::uint32_t keyV = 9;
        user_.tap(keyV);
        user_.flush();
        TestLoop elsewhere;
        elsewhere.watch(front_);
        EXPECT_TRUE(elsewhere.runUntil([&] { return passedOn(keyV) > 0; }));
    }

    void unplug(const Shortcut& /*shortcut*/) { setSuper(0); }
    void plugIn(const Shortcut& /*shortcut*/) {
        setSuper(xkbKeyCode(modifiersOf(modifier_flags::control).front().keyCode).value());
    }

  private:
    void releaseModifiers(const Shortcut& shortcut) {
        for (const Modifier& modifier : modifiersOf(modifierFlags(shortcut.carbonModifiers))) {
            user_.release(modifier.keyCode);
        }
        user_.flush();
    }
    static xcb_keycode_t keyOf(const Shortcut& shortcut) {
        return xkbKeyCode(static_cast<std::uint32_t>(shortcut.carbonKeyCode)).value();
    }
    static std::uint16_t maskOf(const Shortcut& shortcut) {
        std::uint16_t mask = 0;
        for (const Modifier& modifier : modifiersOf(modifierFlags(shortcut.carbonModifiers))) {
            mask = static_cast<std::uint16_t>(mask | modifier.mask);
        }
        return mask;
    }
    /// An answer comes after all that was asked for before.
    void waitForServer() { static_cast<void>(another_.numbers(another_.root(), "_NET_SUPPORTED")); }

    /// The one key that is the fourth of the modifiers without a name, or none.
    void setSuper(xcb_keycode_t key) {
        constexpr std::ptrdiff_t fourth = 6;
        xcb_connection_t* connection = another_.handle();
        const XcbOwned<xcb_get_modifier_mapping_reply_t> mapping(
            xcb_get_modifier_mapping_reply(connection, xcb_get_modifier_mapping(connection), nullptr));
        xcb_keycode_t* keys = xcb_get_modifier_mapping_keycodes(mapping.get());
        const std::ptrdiff_t width = mapping->keycodes_per_modifier;
        std::fill_n(keys + fourth * width, width, xcb_keycode_t{0});
        keys[fourth * width] = key;
        const XcbOwned<xcb_set_modifier_mapping_reply_t> set(xcb_set_modifier_mapping_reply(
            connection, xcb_set_modifier_mapping(connection, mapping->keycodes_per_modifier, keys), nullptr));
        EXPECT_EQ(set->status, XCB_MAPPING_STATUS_SUCCESS);
    }

    X11Connection another_{desktop_.display().c_str()};
    X11HotKeyCenter center_{loop_, {}, desktop_.display().c_str()};
};

class X11KeyEventPosterRig : public X11KeyboardRig {
  public:
    KeyEventPoster& poster() { return poster_; }

    std::vector<std::pair<std::uint16_t, ModifierFlags>> typed() {
        std::vector<std::pair<std::uint16_t, ModifierFlags>> typed;
        for (const X11TestClient::Key& key : front_.keys()) {
            if (key.isPress &&
                (key.keyCode < key_codes::firstModifier || key.keyCode > key_codes::lastModifier)) {
                typed.emplace_back(static_cast<std::uint16_t>(key.keyCode), flagsOf(key.state));
            }
        }
        return typed;
    }
    void hold(ModifierFlags flag) {
        user_.press(modifiersOf(flag).front().keyCode);
        user_.flush();
    }
    void letGo(ModifierFlags flag) {
        user_.release(modifiersOf(flag).front().keyCode);
        user_.flush();
    }
    ModifierFlags held() { return flagsOf(user_.modifiers()); }

  private:
    X11KeyEventPoster poster_{desktop_.display().c_str()};
};

INSTANTIATE_TYPED_TEST_SUITE_P(X11, HotKeyCenterContract, X11HotKeyCenterRig);
INSTANTIATE_TYPED_TEST_SUITE_P(X11, KeyEventPosterContract, X11KeyEventPosterRig);

} // namespace
} // namespace tovrel
