#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "model/VirtualKeyCodes.h"
#include "platform/HotKeyCenter.h"

namespace tovrel {

/// What each centre of hot keys promises. A rig has one, a keyboard of an ordinary English layout, and a
/// window of another program that has the focus. It offers:
///
///     HotKeyCenter& center()
///     bool until(condition)              lets the main thread work until the condition holds
///     void press(Shortcut)               as the user does it, the modifiers first
///     void release(Shortcut)             the same, the modifiers last
///     void releaseModifiersFirst(Shortcut)
///     void takeByAnother(Shortcut)       another program has it as a hot key from now on
///     void giveBackByAnother(Shortcut)   and no longer
///     void openMenu()                    of this program
///     std::size_t passedOn(keyCode)      presses of the key that the focused window has got
///     void outwait()                     while a key is being handled: returns when that has taken too long
///     void unplug(Shortcut)              the keyboard becomes one without the key that is Control
///     void plugIn(Shortcut)              and one with it; the shortcut is the one that needs it
template <typename Rig>
class HotKeyCenterContract : public testing::Test {
  protected:
    static constexpr Shortcut open{key_codes::p, carbon_modifiers::command | carbon_modifiers::shift};
    static constexpr Shortcut other{40, carbon_modifiers::command | carbon_modifiers::option};
    static constexpr Shortcut withControl{key_codes::p, carbon_modifiers::control};

    struct Answer {
        HotKeyHandle handle = 0;
        HotKeyOutcome outcome = HotKeyError::refused;

        [[nodiscard]] bool isSuccess() const { return std::holds_alternative<HotKeyRegistered>(outcome); }
    };

    Answer registered(Rig& rig, const Shortcut& shortcut, std::uint32_t id = 1) {
        const auto told = outcomes_.emplace_back(std::make_shared<std::vector<HotKeyOutcome>>());
        const HotKeyHandle handle = rig.center().registerHotKey(
            static_cast<std::uint32_t>(shortcut.carbonKeyCode),
            static_cast<std::uint32_t>(shortcut.carbonModifiers), {0x54455354, id},
            [told](const HotKeyOutcome& outcome) { told->push_back(outcome); });
        EXPECT_TRUE(rig.until([&] { return !told->empty(); })) << "never answered";
        return {handle, told->empty() ? HotKeyError::refused : told->front()};
    }
    void TearDown() override {
        for (const auto& told : outcomes_) {
            EXPECT_EQ(told->size(), 1U) << "answered once";
        }
    }

    /// What became of which hot key. A key that is held counts once.
    using Told = std::vector<std::pair<std::uint32_t, HotKeyEventKind>>;
    void note(Rig& rig) {
        rig.center().setHotKeyHandler([this](const HotKeyEvent& event) {
            if (const std::pair next{event.identifier.id, event.kind};
                told_.empty() || told_.back() != next) {
                told_.push_back(next);
            }
            return true;
        });
    }
    static Told pressAndRelease(std::uint32_t id) {
        return {{id, HotKeyEventKind::pressed}, {id, HotKeyEventKind::released}};
    }

    /// The first event of that type of the key.
    static std::optional<KeyEvent> found(const std::vector<KeyEvent>& keys, const Shortcut& shortcut,
                                         KeyEventType type) {
        const auto event = std::find_if(keys.begin(), keys.end(), [&](const KeyEvent& key) {
            return key.keyCode == shortcut.carbonKeyCode && key.type == type;
        });
        return event == keys.end() ? std::nullopt : std::optional(*event);
    }

    Told told_;

  private:
    std::vector<std::shared_ptr<std::vector<HotKeyOutcome>>> outcomes_;
};

TYPED_TEST_SUITE_P(HotKeyCenterContract);

TYPED_TEST_P(HotKeyCenterContract, TellsPressesAndReleasesOfWhatIsRegistered) {
    TypeParam rig;
    const auto first = this->registered(rig, this->open, 1);
    const auto second = this->registered(rig, this->other, 2);
    ASSERT_TRUE(first.isSuccess() && second.isSuccess());
    EXPECT_NE(first.handle, second.handle);
    this->note(rig);
    rig.press(this->open);
    ASSERT_TRUE(rig.until([&] { return !this->told_.empty(); }));
    EXPECT_EQ(this->told_.back(), std::pair(1U, HotKeyEventKind::pressed)) << "it is still down";
    rig.release(this->open);
    EXPECT_TRUE(rig.until([&] { return this->told_ == this->pressAndRelease(1); }));
    this->told_.clear();
    rig.press(this->other);
    rig.releaseModifiersFirst(this->other);
    EXPECT_TRUE(rig.until([&] { return this->told_ == this->pressAndRelease(2); }));

    this->told_.clear();
    rig.center().unregisterHotKey(first.handle);
    rig.center().unregisterHotKey(first.handle); // ignored
    for (const Shortcut& shortcut : {this->open, this->other}) {
        rig.press(shortcut);
        rig.release(shortcut);
    }
    EXPECT_TRUE(rig.until([&] { return this->told_ == this->pressAndRelease(2); })) << this->told_.size();
}

TYPED_TEST_P(HotKeyCenterContract, SaysWhyACombinationCannotBeHad) {
    TypeParam rig;
    HotKeyCenter& center = rig.center();
    rig.takeByAnother(this->open);
    EXPECT_EQ(this->registered(rig, this->open).outcome, HotKeyOutcome(HotKeyError::takenByAnother));
    EXPECT_TRUE(center.isSystemShortcut(this->open));
    rig.giveBackByAnother(this->open);
    EXPECT_FALSE(center.isSystemShortcut(this->open));
    const auto own = this->registered(rig, this->open, 1);
    ASSERT_TRUE(own.isSuccess());
    EXPECT_FALSE(center.isSystemShortcut(this->open)) << "it is ours";
    EXPECT_EQ(this->registered(rig, this->open, 2).outcome, HotKeyOutcome(HotKeyError::alreadyRegistered));
    EXPECT_EQ(this->registered(rig, {key_codes::unknown, carbon_modifiers::command}).outcome,
              HotKeyOutcome(HotKeyError::noSuchKey));
    this->note(rig);
    rig.press(this->open);
    rig.release(this->open);
    EXPECT_TRUE(rig.until([&] { return this->told_ == this->pressAndRelease(1); }));
    center.unregisterHotKey(own.handle);
    const auto again = this->registered(rig, this->open);
    EXPECT_TRUE(again.isSuccess());
    EXPECT_NE(again.handle, own.handle);

    // What was given back is not answered any more.
    int answers = 0;
    const HotKeyHandle handle = center.registerHotKey(static_cast<std::uint32_t>(this->other.carbonKeyCode),
                                                      static_cast<std::uint32_t>(this->other.carbonModifiers),
                                                      {}, [&](const HotKeyOutcome&) { ++answers; });
    const int before = answers;
    center.unregisterHotKey(handle);
    EXPECT_TRUE(this->registered(rig, this->other).isSuccess());
    EXPECT_EQ(answers, before);
}

TYPED_TEST_P(HotKeyCenterContract, TakesTheKeyboardAndGivesItBack) {
    TypeParam rig;
    HotKeyCenter& center = rig.center();
    ASSERT_TRUE(this->registered(rig, this->open).isSuccess());
    this->note(rig);
    std::vector<KeyEvent> keys;
    int losses = 0;
    const auto noteKey = [&](const KeyEvent& key) { keys.push_back(key); };
    const auto noteLoss = [&] { ++losses; };
    center.giveKeyboardBack(true); // without effect
    ASSERT_TRUE(center.takeKeyboard(noteKey, noteLoss));
    EXPECT_FALSE(center.takeKeyboard([](const KeyEvent&) { FAIL(); }, noteLoss)) << "taken already";
    rig.press(this->open);
    rig.release(this->open);
    ASSERT_TRUE(rig.until([&] { return this->found(keys, this->open, KeyEventType::keyUp).has_value(); }));
    EXPECT_EQ(this->found(keys, this->open, KeyEventType::keyDown).value().modifierFlags,
              modifierFlags(this->open.carbonModifiers));
    EXPECT_TRUE(this->told_.empty()) << "a hot key is a key like any other then";
    center.giveKeyboardBack(false);
    rig.press(this->open);
    rig.release(this->open);
    ASSERT_TRUE(rig.until([&] { return this->told_ == this->pressAndRelease(1); }));

    const Shortcut plain{key_codes::returnKey, 0};
    ASSERT_TRUE(center.takeKeyboard([&](const KeyEvent&) { center.giveKeyboardBack(true); }, noteLoss));
    rig.press(plain);
    rig.release(plain);
    ASSERT_TRUE(rig.until([&] { return rig.passedOn(key_codes::returnKey) == 1; }));
    EXPECT_EQ(losses, 0);

    ASSERT_TRUE(center.takeKeyboard([&](const KeyEvent&) { rig.outwait(); }, noteLoss));
    rig.press(plain);
    rig.release(plain);
    ASSERT_TRUE(rig.until([&] { return losses == 1; }));
    this->told_.clear();
    rig.press(this->open);
    rig.release(this->open);
    EXPECT_TRUE(rig.until([&] { return this->told_ == this->pressAndRelease(1); }));
    EXPECT_TRUE(center.takeKeyboard(noteKey, noteLoss));
    center.giveKeyboardBack(false);
    EXPECT_EQ(losses, 1);
    EXPECT_EQ(rig.passedOn(key_codes::returnKey), 1U);
}

TYPED_TEST_P(HotKeyCenterContract, ShowsTheKeysOfAnOpenMenu) {
    TypeParam rig;
    std::vector<KeyEvent> keys;
    rig.center().setRawKeyHandler([&](const KeyEvent& key) {
        keys.push_back(key);
        return true;
    });
    rig.openMenu();
    rig.press(this->other);
    rig.release(this->other);
    ASSERT_TRUE(rig.until([&] { return this->found(keys, this->other, KeyEventType::keyUp).has_value(); }));
    EXPECT_EQ(this->found(keys, this->other, KeyEventType::keyDown).value().modifierFlags,
              modifierFlags(this->other.carbonModifiers));
}

TYPED_TEST_P(HotKeyCenterContract, FollowsTheKeyboard) {
    TypeParam rig;
    HotKeyCenter& center = rig.center();
    EXPECT_EQ(center.characterForKeyCode(key_codes::p), Text("p"));
    EXPECT_EQ(center.characterForKeyCode(key_codes::returnKey), std::nullopt);
    EXPECT_EQ(center.characterForKeyCode(key_codes::unknown), std::nullopt);
    const auto own = this->registered(rig, this->withControl);
    ASSERT_TRUE(own.isSuccess());
    int changes = 0;
    center.setKeyboardHandler([&] { ++changes; });
    EXPECT_EQ(center.refusal(own.handle), std::nullopt);
    rig.unplug(this->withControl);
    ASSERT_TRUE(rig.until([&] { return center.refusal(own.handle).has_value(); }));
    EXPECT_EQ(center.refusal(own.handle + 1), std::nullopt) << "nothing is registered so";
    EXPECT_GT(changes, 0);
    const int before = changes;
    rig.plugIn(this->withControl);
    ASSERT_TRUE(rig.until([&] { return !center.refusal(own.handle); }));
    EXPECT_GT(changes, before);
    this->note(rig);
    rig.press(this->withControl);
    rig.release(this->withControl);
    EXPECT_TRUE(rig.until([&] { return this->told_ == this->pressAndRelease(1); }));
}

REGISTER_TYPED_TEST_SUITE_P(HotKeyCenterContract, TellsPressesAndReleasesOfWhatIsRegistered,
                            SaysWhyACombinationCannotBeHad, TakesTheKeyboardAndGivesItBack,
                            ShowsTheKeysOfAnOpenMenu, FollowsTheKeyboard);

} // namespace tovrel
