#include "platform/x11/hotkeys/X11HotKeyCenter.h"

#include <algorithm>
#include <memory>
#include <numeric>
#include <poll.h>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Shortcut.h"
#include "platform/linux/keyboard/VirtualKeyCodes.h"
#include "platform/x11/RegisteredHotKey.h"
#include "platform/x11/X11ServerFixture.h"
#include "platform/x11/X11TestClient.h"
#include "platform/x11/server/XcbOwned.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

constexpr std::uint32_t keyP = 35;
constexpr std::uint32_t keyK = 40;
constexpr std::uint32_t keyReturn = 36;
constexpr std::uint32_t keyControl = 55;
constexpr std::uint32_t keyShift = 56;
constexpr std::uint32_t keyCapsLock = 57;
constexpr std::uint32_t keyAlt = 58;
constexpr std::uint32_t keySuper = 59;
constexpr std::uint32_t keyNumLock = 71;
constexpr std::uint32_t commandShift =
    static_cast<std::uint32_t>(carbon_modifiers::command | carbon_modifiers::shift);

/// The keys 0 to 9: A, S, D, F, H, G, Z, X, C, V.
std::vector<std::uint32_t> tenKeys() {
    std::vector<std::uint32_t> keys(10);
    std::iota(keys.begin(), keys.end(), 0);
    return keys;
}

/// A front window, and a palette that the hot key Ctrl+Shift+P shows and hides.
class X11HotKeyCenterTest : public X11ServerTest {
  protected:
    void SetUp() override {
        for (EventSource* source : std::initializer_list<EventSource*>{&center_, &front_, &panel_}) {
            loop_.watch(*source);
        }
        center_.setHotKeyHandler([this](const HotKeyEvent& event) {
            events_.push_back(event.kind);
            if (event.kind == HotKeyEventKind::pressed && onPress) {
                onPress();
            }
            return true;
        });
    }

    HotKeyHandle registered(std::uint32_t keyCode = keyP, std::uint32_t modifiers = commandShift) {
        const auto [handle, outcome] = tovrel::registered(center_, keyCode, modifiers, {0x5456484B, 1});
        EXPECT_EQ(outcome, HotKeyOutcome(HotKeyRegistered()));
        return handle;
    }
    [[nodiscard]] HotKeyOutcome outcome(std::uint32_t keyCode) {
        return tovrel::registered(center_, keyCode, commandShift).outcome;
    }

    /// Makes each window take the focus itself when it is its turn, because there is no window manager.
    void focusByThemselves() {
        panel_.onVisibility = [this](bool isVisible) { (isVisible ? panel_ : front_).focus(); };
        front_.map();
        ASSERT_TRUE(loop_.runUntil([&] { return front_.isMapped(); }));
        front_.focus();
        ASSERT_TRUE(loop_.runUntil([&] { return front_.hasFocus(); }));
    }
    void toggleOnPress() {
        onPress = [this] {
            const bool wasShown = isPanelShown_;
            isPanelShown_ = !wasShown;
            wasShown ? panel_.unmap() : panel_.map();
        };
    }

    void pressHotKey() {
        for (const std::uint32_t key : {keyControl, keyShift, keyP}) {
            keyboard_.press(key);
        }
    }
    void releaseHotKey() {
        for (const std::uint32_t key : {keyP, keyShift, keyControl}) {
            keyboard_.release(key);
        }
    }
    void typeTenKeys() {
        for (const std::uint32_t key : tenKeys()) {
            keyboard_.tap(key);
        }
    }
    int count(HotKeyEventKind kind) const {
        return static_cast<int>(std::count(events_.begin(), events_.end(), kind));
    }
    int presses() const { return count(HotKeyEventKind::pressed); }
    int releases() const { return count(HotKeyEventKind::released); }

    X11TestClient front_{display_};
    X11TestClient panel_{display_};
    bool isPanelShown_ = false;
    std::function<void()> onPress;
    std::function<KeyDestination()> destination_ = [this] {
        return KeyDestination{panel_.window(), isPanelShown_};
    };
    X11HotKeyCenter center_{loop_, [this] { return destination_(); }, display_.c_str()};
    X11TestKeyboard keyboard_{display_};
    std::vector<HotKeyEventKind> events_;

    /// Types Ctrl+Shift+P and ten keys in one write, which hides and shows the panel in turn. All keys must
    /// reach the window that the hot key leaves in front, and no other.
    void toggleAndType(int rounds) {
        const std::vector<std::uint32_t> modifierKeys{keyControl, keyShift};
        for (int round = 0; round < rounds; ++round) {
            X11TestClient& before = isPanelShown_ ? panel_ : front_;
            X11TestClient& after = isPanelShown_ ? front_ : panel_;
            before.forget();
            after.forget();
            events_.clear();
            pressHotKey();
            releaseHotKey();
            typeTenKeys();
            keyboard_.flush();
            ASSERT_TRUE(loop_.runUntil([&] {
                return after.presses().size() >= 10 && releases() == 1 && after.hasFocus();
            })) << "round "
                << round << ": " << after.presses().size() << " keys arrived, " << before.presses().size()
                << " behind";
            EXPECT_EQ(after.presses(), tenKeys()) << "round " << round;
            EXPECT_EQ(before.presses(), modifierKeys) << "round " << round;
            EXPECT_EQ(presses(), 1);
            ASSERT_FALSE(HasFailure()) << "round " << round;
        }
        EXPECT_TRUE(keyboard_.down().empty());
    }
};

TEST_F(X11HotKeyCenterTest, LosesAndLeaksNoKeyWhereWindowsTakeTheFocus) {
    focusByThemselves();
    toggleOnPress();
    registered();
    toggleAndType(100);
}

TEST_F(X11HotKeyCenterTest, LosesAndLeaksNoKeyUnderAWindowManager) {
    startWindowManager();
    front_.map();
    ASSERT_TRUE(loop_.runUntil([&] { return front_.hasFocus(); }));
    toggleOnPress();
    registered();
    toggleAndType(100);
}

TEST_F(X11HotKeyCenterTest, TheFrontWindowSeemsFocusedWhileTheHandlerRuns) {
    focusByThemselves();
    registered();
    bool seemedFocused = false;
    onPress = [&] {
        // Any answer will do, because the server's earlier events for the window have come by then.
        xcb_connection_t* connection = front_.connection().handle();
        const XcbOwned<xcb_get_input_focus_reply_t> answer(
            xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
        front_.dispatch();
        seemedFocused = front_.seemsFocused();
    };
    pressHotKey();
    releaseHotKey();
    keyboard_.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return releases() == 1; }));
    EXPECT_TRUE(seemedFocused);
    EXPECT_TRUE(loop_.runUntil([&] { return front_.seemsFocused(); }));
}

TEST_F(X11HotKeyCenterTest, FiresUnderEveryCombinationOfLocksAndNoOtherModifier) {
    focusByThemselves();
    registered();
    // Off, Caps, Caps and Num, Num.
    for (const std::uint32_t lock : {keyCapsLock, keyNumLock, keyCapsLock, keyNumLock}) {
        events_.clear();
        pressHotKey();
        releaseHotKey();
        keyboard_.flush();
        ASSERT_TRUE(loop_.runUntil([&] { return releases() == 1; })) << "locks " << keyboard_.modifiers();
        EXPECT_EQ(presses(), 1);
        keyboard_.tap(lock);
    }
    front_.forget();
    events_.clear();
    keyboard_.press(keyAlt);
    pressHotKey();
    releaseHotKey();
    keyboard_.release(keyAlt);
    keyboard_.flush();
    ASSERT_TRUE(loop_.runUntil([&] {
        const auto arrived = front_.presses();
        return std::find(arrived.begin(), arrived.end(), keyP) != arrived.end();
    }));
    EXPECT_EQ(presses(), 0);
}

TEST_F(X11HotKeyCenterTest, RefusesWhatItCannotHaveAndKeepsNothingOfIt) {
    const xcb_keycode_t p = xkbKeyCode(keyP).value();
    const std::uint16_t modifiers = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT;
    X11TestClient other(display_);
    const auto grabbed = [&](std::uint16_t locks) {
        const auto cookie = xcb_grab_key_checked(other.connection().handle(), 0, other.connection().root(),
                                                 static_cast<std::uint16_t>(modifiers | locks), p,
                                                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        const XcbOwned<xcb_generic_error_t> error(xcb_request_check(other.connection().handle(), cookie));
        return error == nullptr;
    };
    ASSERT_TRUE(grabbed(XCB_MOD_MASK_2)) << "one of the four combinations";
    EXPECT_EQ(outcome(keyP), HotKeyOutcome(HotKeyError::takenByAnother));
    EXPECT_TRUE(center_.isSystemShortcut({keyP, commandShift}));
    EXPECT_TRUE(grabbed(0) && grabbed(XCB_MOD_MASK_LOCK) && grabbed(XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2));

    EXPECT_EQ(outcome(63), HotKeyOutcome(HotKeyError::noSuchKey)) << "keyboards keep it to themselves";

    X11HotKeyCenter nowhere(loop_, {}, ":60987");
    EXPECT_EQ(tovrel::registered(nowhere, keyK, commandShift).outcome, HotKeyOutcome(HotKeyError::noHotKeys));
    EXPECT_EQ(nowhere.fileDescriptor(), -1);
    EXPECT_EQ(nowhere.characterForKeyCode(keyP), std::nullopt);
    nowhere.unregisterHotKey(1);
    nowhere.setRawKeyHandler([](const KeyEvent&) { return false; });
    nowhere.dispatch();
}

TEST_F(X11HotKeyCenterTest, LetsTheKeyboardGoWhenTheWindowNeverGetsTheFocus) {
    focusByThemselves();
    registered();
    isPanelShown_ = true; // The stage says so, but it is not.
    pressHotKey();
    releaseHotKey();
    typeTenKeys();
    keyboard_.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return front_.presses().size() == 12; }));
    ASSERT_TRUE(loop_.runUntil([&] { return releases() == 1; }));

    // The same applies to a window that does not exist, and to a handler that waits for keys itself.
    front_.forget();
    destination_ = [] { return KeyDestination{0x7FFFFFF, true}; };
    onPress = [this] {
        EXPECT_TRUE(loop_.runUntil([&] { return front_.presses().size() == 12; })) << "in the handler";
    };
    pressHotKey();
    releaseHotKey();
    typeTenKeys();
    keyboard_.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return releases() == 2; }));
    onPress = nullptr;
    pressHotKey();
    releaseHotKey();
    keyboard_.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return releases() == 3; }));
    EXPECT_EQ(presses(), 3);
}

TEST_F(X11HotKeyCenterTest, LetsTheKeyboardGoWhileItsThreadIsBlocked) {
    focusByThemselves();
    registered();
    // Nothing of the center is dispatched in here; its thread does not know of the second press.
    onPress = [this] {
        onPress = nullptr;
        TestLoop elsewhere;
        elsewhere.watch(front_);
        const auto typedArrive = [&](std::size_t inAll) {
            releaseHotKey();
            typeTenKeys();
            keyboard_.flush();
            EXPECT_TRUE(elsewhere.runUntil([&] { return front_.presses().size() == inAll; }))
                << front_.presses().size() << " of " << inAll;
        };
        typedArrive(12);
        pressHotKey();
        typedArrive(24);
    };
    pressHotKey();
    keyboard_.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return presses() == 2 && releases() == 2; }));

    // Late requests have not ended a later hold.
    toggleOnPress();
    toggleAndType(5);
}

TEST_F(X11HotKeyCenterTest, ReportsTheReleaseOnceInWhateverOrderTheKeysComeUp) {
    focusByThemselves();
    toggleOnPress();
    registered();
    pressHotKey();
    keyboard_.release(keyControl);
    keyboard_.release(keyShift);
    keyboard_.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return presses() == 1 && panel_.keys().size() == 2; }));
    EXPECT_EQ(releases(), 0) << "the key itself is still down";
    keyboard_.release(keyP);
    keyboard_.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return releases() == 1; }));

    // Typing wakes nobody up while no hot key is down, from when the server has heard that it need not tell.
    static_cast<void>(center_.characterForKeyCode(35)); // The server answers after that.
    typeTenKeys();
    keyboard_.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return panel_.presses().size() == 10; }));
    pollfd readable{center_.fileDescriptor(), POLLIN, 0};
    EXPECT_EQ(poll(&readable, 1, 50), 0);
    EXPECT_EQ(releases(), 1);
    EXPECT_NE(center_.lastPressTime(), 0U);
}

TEST_F(X11HotKeyCenterTest, ReportsPressesOfAHeldKeyAndOneRelease) {
    focusByThemselves();
    registered();
    for (const auto kind : {X11TestKeyboard::Kind::real, X11TestKeyboard::Kind::synthetic}) {
        events_.clear();
        X11TestKeyboard keyboard(display_, kind);
        for (const std::uint32_t key : {keyControl, keyShift, keyP}) {
            keyboard.press(key);
        }
        keyboard.flush();
        ASSERT_TRUE(loop_.runUntil([&] { return presses() >= 3; }))
            << "does not repeat: " << static_cast<int>(kind);
        EXPECT_EQ(releases(), 0);
        front_.forget();
        keyboard.tap(keyK);
        keyboard.flush();
        ASSERT_TRUE(loop_.runUntil([&] { return front_.presses() == std::vector{keyK}; }))
            << "the keyboard is held";
        for (const std::uint32_t key : {keyControl, keyShift, keyP}) {
            keyboard.release(key);
        }
        keyboard.flush();
        ASSERT_TRUE(loop_.runUntil([&] { return releases() == 1; }));
        EXPECT_EQ(events_.back(), HotKeyEventKind::released);
        EXPECT_TRUE(keyboard.down().empty());
    }
}

TEST_F(X11HotKeyCenterTest, GivesTheKeyboardBackWithAKeyThatIsHeld) {
    focusByThemselves();
    isPanelShown_ = true; // The center would wait for it.
    HotKeyHandle handle = registered();
    onPress = [&] { center_.unregisterHotKey(handle); };
    X11TestKeyboard keyboard(display_, X11TestKeyboard::Kind::real);
    for (const std::uint32_t key : {keyControl, keyShift, keyP}) {
        keyboard.press(key);
    }
    keyboard.tap(keyK);
    keyboard.flush();
    ASSERT_TRUE(loop_.runUntil([&] {
        const auto arrived = front_.presses();
        return !arrived.empty() && arrived.back() == keyK;
    }));
    EXPECT_EQ(presses(), 1);

    // A hot key that is registered again while the key is down and repeats counts only after the key came up.
    onPress = nullptr;
    keyboard.press(keyP);
    keyboard.flush();
    handle = registered();
    front_.forget();
    EXPECT_FALSE(loop_.runUntil([&] { return presses() > 1; }, 900ms));
    keyboard.release(keyP);
    keyboard.press(keyP);
    keyboard.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return presses() == 2; }));
    EXPECT_EQ(releases(), 0) << "of the press before it was unregistered";

    // This happens while the center waits for the focus.
    center_.unregisterHotKey(handle);
    keyboard.tap(keyK);
    for (const std::uint32_t key : {keyControl, keyShift, keyP}) {
        keyboard.release(key);
    }
    keyboard.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return front_.keys().size() >= 2 && keyboard.down().empty(); }));
    EXPECT_EQ(releases(), 0);
}

TEST_F(X11HotKeyCenterTest, TakesTheKeyboardFromEveryHotKey) {
    focusByThemselves();
    registered();
    X11TestClient other(display_);
    xcb_connection_t* connection = other.connection().handle();
    xcb_grab_key(connection, 0, other.connection().root(), XCB_MOD_MASK_1, xkbKeyCode(keyK).value(),
                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    xcb_flush(connection);
    front_.forget();
    std::vector<KeyEvent> keys;
    const auto note = [&](const KeyEvent& key) { keys.push_back(key); };
    ASSERT_TRUE(center_.takeKeyboard(note, {}));
    pressHotKey();
    releaseHotKey();
    keyboard_.press(keyAlt);
    keyboard_.tap(keyK);
    keyboard_.release(keyAlt);
    keyboard_.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return keys.size() == 10; })) << keys.size();
    EXPECT_EQ(keys[2].keyCode, keyP);
    EXPECT_EQ(keys[2].type, KeyEventType::keyDown);
    EXPECT_EQ(keys[2].modifierFlags, modifier_flags::command | modifier_flags::shift);
    EXPECT_EQ(keys[3].type, KeyEventType::keyUp);
    EXPECT_EQ(keys[7].keyCode, keyK);
    EXPECT_EQ(keys[7].modifierFlags, modifier_flags::option);
    other.dispatch();
    EXPECT_TRUE(other.keys().empty());
    EXPECT_EQ(presses(), 0);

    // The window with the focus does not notice, and gets the key that is passed on.
    center_.giveKeyboardBack(false);
    const std::uint32_t passedOn = keyReturn;
    ASSERT_TRUE(center_.takeKeyboard([&](const KeyEvent&) { center_.giveKeyboardBack(true); }, {}));
    keyboard_.tap(passedOn);
    typeTenKeys();
    keyboard_.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return front_.presses().size() == 11; }));
    EXPECT_EQ(front_.presses().front(), passedOn);
    EXPECT_TRUE(front_.seemsFocused());

    const XcbOwned<xcb_grab_keyboard_reply_t> grab(
        xcb_grab_keyboard_reply(connection,
                                xcb_grab_keyboard(connection, 0, other.connection().root(), XCB_CURRENT_TIME,
                                                  XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                                nullptr));
    ASSERT_EQ(grab->status, XCB_GRAB_STATUS_SUCCESS);
    EXPECT_FALSE(center_.takeKeyboard(note, {}));
}

TEST_F(X11HotKeyCenterTest, LosesATakenKeyboardThatIsNotAttendedTo) {
    focusByThemselves();
    registered();
    front_.forget();
    int losses = 0;
    const auto block = [&](const KeyEvent&) {
        TestLoop elsewhere;
        elsewhere.watch(front_);
        EXPECT_TRUE(elsewhere.runUntil([&] { return front_.presses() == tenKeys(); }));
    };
    ASSERT_TRUE(center_.takeKeyboard(block, [&] { ++losses; }));
    keyboard_.tap(keyReturn);
    typeTenKeys();
    keyboard_.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return losses == 1; }));
    center_.giveKeyboardBack(false);
    toggleOnPress();
    toggleAndType(3);
    EXPECT_EQ(losses, 1);
}

TEST_F(X11HotKeyCenterTest, ShowsRawKeysWhileAnotherClientHoldsTheKeyboard) {
    focusByThemselves();
    const XcbOwned<xcb_grab_keyboard_reply_t> grab(
        xcb_grab_keyboard_reply(front_.connection().handle(),
                                xcb_grab_keyboard(front_.connection().handle(), 0, front_.window(),
                                                  XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                                nullptr));
    ASSERT_EQ(grab->status, XCB_GRAB_STATUS_SUCCESS);
    std::vector<KeyEvent> keys;
    center_.setRawKeyHandler([&](const KeyEvent& key) {
        keys.push_back(key);
        return true;
    });
    pressHotKey();
    releaseHotKey();
    keyboard_.press(keySuper);
    keyboard_.press(keyAlt);
    keyboard_.press(keyReturn);
    keyboard_.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return keys.size() == 9; }));
    EXPECT_EQ(keys[2].keyCode, keyP);
    EXPECT_EQ(keys[2].type, KeyEventType::keyDown);
    EXPECT_EQ(keys[2].modifierFlags, modifier_flags::command | modifier_flags::shift);
    EXPECT_EQ(keys[2].charactersIgnoringModifiers, Text("P"));
    EXPECT_EQ(keys[3].type, KeyEventType::keyUp);
    EXPECT_EQ(keys[8].keyCode, keyReturn);
    EXPECT_EQ(keys[8].modifierFlags, modifier_flags::control | modifier_flags::option);
    EXPECT_EQ(keys[8].charactersIgnoringModifiers, std::nullopt);

    center_.setRawKeyHandler({});
    typeTenKeys();
    keyboard_.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return front_.presses().size() >= 16; }));
    EXPECT_EQ(keys.size(), 9U);
}

TEST_F(X11HotKeyCenterTest, FollowsTheKeyboardAndItsLayout) {
    const auto afterCommand = [](const std::string& command) {
        const ServerProcess process({"/bin/sh", "-c", command + "; echo $? >/dev/fd/{fd}"});
        EXPECT_EQ(process.announced(), "0") << command;
    };
    EXPECT_EQ(center_.characterForKeyCode(16), Text("y"));
    EXPECT_EQ(center_.characterForKeyCode(50), Text("`"));
    EXPECT_EQ(center_.characterForKeyCode(keyReturn), std::nullopt);
    EXPECT_EQ(center_.characterForKeyCode(keyShift), std::nullopt);
    registered(keyP, static_cast<std::uint32_t>(carbon_modifiers::control)); // Super+P
    focusByThemselves();
    afterCommand("setxkbmap -display " + display_ + " de -option altwin:swap_alt_win");
    ASSERT_TRUE(loop_.runUntil([&] { return center_.characterForKeyCode(16) == Text("z"); }));
    EXPECT_EQ(center_.characterForKeyCode(39), Text("ä"));

    // The key of Alt is Super now; under either lock the hot key fires, on either keyboard.
    for (const auto kind : {X11TestKeyboard::Kind::real, X11TestKeyboard::Kind::synthetic}) {
        X11TestKeyboard keyboard(display_, kind);
        keyboard.tap(keyNumLock);
        keyboard.press(keyAlt);
        keyboard.tap(keyP);
        keyboard.release(keyAlt);
        keyboard.flush();
        ASSERT_TRUE(loop_.runUntil([&] { return releases() == 1; })) << static_cast<int>(kind);
        events_.clear();
    }

    // Super moves to another modifier: from the fourth to the third of those without a name.
    xcb_connection_t* connection = keyboard_.connection().handle();
    const XcbOwned<xcb_get_modifier_mapping_reply_t> mapping(
        xcb_get_modifier_mapping_reply(connection, xcb_get_modifier_mapping(connection), nullptr));
    xcb_keycode_t* keys = xcb_get_modifier_mapping_keycodes(mapping.get());
    const std::ptrdiff_t width = mapping->keycodes_per_modifier;
    std::swap_ranges(keys + 5 * width, keys + 6 * width, keys + 6 * width);
    const XcbOwned<xcb_set_modifier_mapping_reply_t> set(xcb_set_modifier_mapping_reply(
        connection, xcb_set_modifier_mapping(connection, mapping->keycodes_per_modifier, keys), nullptr));
    ASSERT_EQ(set->status, XCB_MAPPING_STATUS_SUCCESS);
    EXPECT_TRUE(loop_.runUntil([&] {
        keyboard_.press(keyAlt);
        keyboard_.tap(keyP);
        keyboard_.release(keyAlt);
        keyboard_.flush();
        return presses() > 0;
    }));
}

TEST(X11HotKeyCenterAlone, StandsTheLossOfTheServer) {
    auto server = std::make_unique<ServerProcess>(std::vector<std::string>{
        "Xvfb", "-displayfd", "{fd}", "-screen", "0", "64x64x24", "-nolisten", "tcp"});
    TestLoop loop;
    X11HotKeyCenter center(loop, {}, (":" + server->announced()).c_str());
    loop.watch(center);
    const auto [handle, outcome] = registered(center, keyP, commandShift);
    ASSERT_EQ(outcome, HotKeyOutcome(HotKeyRegistered()));
    server.reset();
    EXPECT_TRUE(loop.runUntil([&] { return center.fileDescriptor() == -1; }));
    center.unregisterHotKey(handle);
    EXPECT_EQ(registered(center, keyP, commandShift).outcome, HotKeyOutcome(HotKeyError::noHotKeys));
}

} // namespace
} // namespace tovrel
