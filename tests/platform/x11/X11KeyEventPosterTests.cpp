#include "platform/x11/keyboard/X11KeyEventPoster.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Shortcut.h"
#include "platform/x11/RegisteredHotKey.h"
#include "platform/x11/X11ServerFixture.h"
#include "platform/x11/X11TestClient.h"
#include "platform/x11/hotkeys/X11HotKeyCenter.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;
using Key = X11TestClient::Key;
using Codes = std::vector<std::uint32_t>;

constexpr std::uint32_t keyP = 35;
constexpr std::uint32_t keyK = 40;
constexpr std::uint32_t keyControl = 55;
constexpr std::uint32_t keyShift = 56;
constexpr std::uint32_t keyCapsLock = 57;
constexpr std::uint32_t keyAlt = 58;
constexpr std::uint32_t keySuper = 59;

class X11KeyEventPosterTest : public X11ServerTest {
  protected:
    void SetUp() override {
        loop_.watch(front_);
        front_.map();
        ASSERT_TRUE(loop_.runUntil([&] { return front_.isMapped(); }));
        front_.focus();
        ASSERT_TRUE(loop_.runUntil([&] { return front_.hasFocus(); }));
    }

    /// The presses of one key that the front window gets until its release.
    std::vector<Key> pressesUntilReleased(std::uint32_t keyCode) {
        EXPECT_TRUE(loop_.runUntil([&] {
            return std::any_of(front_.keys().begin(), front_.keys().end(), [&](const Key& key) {
                return key.keyCode == keyCode && !key.isPress &&
                       std::count_if(front_.keys().begin(), front_.keys().end(), [&](const Key& other) {
                           return other.keyCode == keyCode && other.isPress;
                       }) > 0;
            });
        }));
        std::vector<Key> presses;
        std::copy_if(front_.keys().begin(), front_.keys().end(), std::back_inserter(presses),
                     [&](const Key& key) { return key.keyCode == keyCode && key.isPress; });
        return presses;
    }

    X11TestClient front_{display_};
    X11TestKeyboard user_{display_, X11TestKeyboard::Kind::real};
    X11KeyEventPoster poster_{display_.c_str()};
};

TEST_F(X11KeyEventPosterTest, PressesWhatIsWantedAndLeavesNothingDown) {
    ASSERT_TRUE(poster_.postKeyPress(keyK, modifier_flags::command | modifier_flags::option));
    EXPECT_EQ(pressesUntilReleased(keyK),
              (std::vector<Key>{{keyK, true, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1}}));
    EXPECT_EQ(front_.presses(), (Codes{keyControl, keyAlt, keyK}));
    EXPECT_TRUE(user_.down().empty());

    // A lock stays as it is, whatever the flags say.
    user_.tap(keyCapsLock);
    user_.flush();
    front_.forget();
    ASSERT_TRUE(poster_.postKeyPress(keyK, modifier_flags::control | modifier_flags::function));
    EXPECT_EQ(pressesUntilReleased(keyK),
              (std::vector<Key>{{keyK, true, XCB_MOD_MASK_LOCK | XCB_MOD_MASK_4}}));
    EXPECT_EQ(user_.modifiers(), XCB_MOD_MASK_LOCK);

    EXPECT_FALSE(poster_.postKeyPress(63, 0)) << "no such key";
    X11KeyEventPoster nowhere(":60987");
    EXPECT_FALSE(nowhere.canPost());
    EXPECT_FALSE(nowhere.postKeyPress(keyK, 0));
    EXPECT_TRUE(user_.down().empty());
}

TEST_F(X11KeyEventPosterTest, TakesWhatTheUserHoldsIntoAccount) {
    const auto hold = [this](const Codes& keys) {
        std::for_each(keys.begin(), keys.end(), [this](std::uint32_t key) { user_.press(key); });
        user_.flush();
        ASSERT_TRUE(loop_.runUntil([&] { return front_.presses() == keys; }));
        front_.forget();
    };
    const Codes keys{keyControl, keyShift, keySuper, keyP};
    hold(keys);
    ASSERT_TRUE(poster_.postKeyPress(keyP, modifier_flags::command));
    EXPECT_EQ(pressesUntilReleased(keyP), (std::vector<Key>{{keyP, true, XCB_MOD_MASK_CONTROL}}));
    EXPECT_EQ(user_.modifiers(), XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_4)
        << "the user still holds them";
    std::for_each(keys.begin(), keys.end(), [this](std::uint32_t key) { user_.release(key); });
    user_.flush();
    EXPECT_EQ(user_.modifiers(), 0);
    EXPECT_TRUE(user_.down().empty());

    // A key that was put back does not disturb a later press.
    front_.forget();
    ASSERT_TRUE(poster_.postKeyPress(keyK, modifier_flags::shift));
    EXPECT_EQ(pressesUntilReleased(keyK), (std::vector<Key>{{keyK, true, XCB_MOD_MASK_SHIFT}}));
    EXPECT_TRUE(user_.down().empty());

    // The user does not hold a key that another program plays, so it is not put back.
    X11TestKeyboard program(display_);
    program.press(keyAlt);
    program.flush();
    front_.forget();
    ASSERT_TRUE(poster_.postKeyPress(keyK, 0));
    EXPECT_EQ(pressesUntilReleased(keyK), (std::vector<Key>{{keyK, true, 0}}));
    EXPECT_TRUE(user_.down().empty());
}

TEST_F(X11KeyEventPosterTest, PassesAHotKeyOnThatTheUserStillHolds) {
    X11HotKeyCenter center(loop_, {}, display_.c_str());
    loop_.watch(center);
    const auto modifiers = static_cast<std::uint32_t>(carbon_modifiers::command | carbon_modifiers::shift);
    HotKeyHandle handle = registered(center, keyP, modifiers).handle;
    int presses = 0;
    center.setHotKeyHandler([&](const HotKeyEvent& event) {
        presses += event.kind == HotKeyEventKind::pressed ? 1 : 0;
        if (presses == 1) {
            center.unregisterHotKey(handle);
        }
        return true;
    });
    const Codes keys{keyControl, keyShift, keyP};
    std::for_each(keys.begin(), keys.end(), [this](std::uint32_t key) { user_.press(key); });
    user_.flush();
    ASSERT_TRUE(loop_.runUntil([&] { return presses == 1; }));
    ASSERT_TRUE(poster_.postKeyPress(keyP, modifier_flags::command | modifier_flags::shift));
    EXPECT_EQ(pressesUntilReleased(keyP),
              (std::vector<Key>{{keyP, true, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT}}));
    handle = registered(center, keyP, modifiers).handle;
    EXPECT_FALSE(loop_.runUntil([&] { return presses > 1; }, 900ms)) << "the held key repeats itself";
    EXPECT_EQ(user_.modifiers(), XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT);
    std::for_each(keys.rbegin(), keys.rend(), [this](std::uint32_t key) { user_.release(key); });
    std::for_each(keys.begin(), keys.end(), [this](std::uint32_t key) { user_.press(key); });
    user_.flush();
    EXPECT_TRUE(loop_.runUntil([&] { return presses == 2; }));
    std::for_each(keys.rbegin(), keys.rend(), [this](std::uint32_t key) { user_.release(key); });
    user_.flush();
    EXPECT_TRUE(user_.down().empty());
}

} // namespace
} // namespace tovrel
