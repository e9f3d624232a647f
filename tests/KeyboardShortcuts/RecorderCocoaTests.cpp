#include "KeyboardShortcuts/RecorderCocoa.h"

#include <memory>
#include <sstream>
#include <vector>

#include <gtest/gtest.h>

#include "model/VirtualKeyCodes.h"
#include "platform/memory/MemoryHotKeyCenter.h"
#include "platform/memory/MemoryPreferencesDomain.h"
#include "platform/memory/MemoryUserInterface.h"

namespace tovrel {
namespace {

constexpr const char* key = "KeyboardShortcuts_togglePalette";
constexpr Shortcut standard{35, 768};
constexpr std::uint32_t keyK = 40;
constexpr std::uint32_t keyW = 13;

KeyEvent keyDown(std::uint32_t keyCode, ModifierFlags modifiers = 0) {
    return {KeyEventType::keyDown, keyCode, std::nullopt, modifiers};
}

class RecorderCocoaTest : public testing::Test {
  protected:
    RecorderCocoaTest() {
        shortcuts_.onKeyDown(name_, [this] { ++fired_; });
        recorder_->becomeFirstResponder();
    }

    static Text textOf(const Shortcut& shortcut) {
        return Text(std::to_string(shortcut.carbonKeyCode) + "/" + std::to_string(shortcut.carbonModifiers));
    }
    [[nodiscard]] std::unique_ptr<RecorderCocoa> makeRecorder() {
        return std::make_unique<RecorderCocoa>(
            RecorderSurroundings{.shortcuts = shortcuts_,
                                 .hotKeyCenter = center_,
                                 .userInterface = userInterface_,
                                 .localized =
                                     [](const char* /*context*/, const char* name) {
                                         return std::string_view(name) ==
                                                        "keyboard_shortcut_used_by_menu_item"
                                                    ? Text("in %@!")
                                                    : Text(name);
                                     },
                                 .textOf = textOf,
                                 .menuItemTitle =
                                     [](const Shortcut& shortcut) {
                                         return shortcut == Shortcut{keyW, carbon_modifiers::command}
                                                    ? std::optional<Text>("Close")
                                                    : std::nullopt;
                                     }},
            name_);
    }
    [[nodiscard]] std::optional<Shortcut> stored() const { return shortcuts_.getShortcut(name_); }

    TextServices textServices_{"en"};
    MemoryPreferencesDomain preferences_;
    MemoryHotKeyCenter center_;
    MemoryUserInterface userInterface_;
    std::ostringstream output_;
    KeyboardShortcuts shortcuts_{preferences_, center_, userInterface_, textServices_, output_};
    KeyboardShortcuts::Name name_ = shortcuts_.makeName("togglePalette", standard);
    int fired_ = 0;
    std::unique_ptr<RecorderCocoa> recorder_ = makeRecorder();
};

TEST_F(RecorderCocoaTest, WhileItRecordsNothingFires) {
    center_.giveKeyboardBack(false); // as if it could not be taken
    std::vector<bool> told;
    const Subscription subscription =
        shortcuts_.onRecorderActiveStatusDidChange([&](bool isActive) { told.push_back(isActive); });
    EXPECT_EQ(recorder_->placeholder().get(), Text("press_shortcut"));
    EXPECT_EQ(recorder_->stringValue().get(), textOf(standard));
    center_.press(standard);
    EXPECT_EQ(fired_, 0);
    recorder_->endRecording();
    EXPECT_EQ(recorder_->placeholder().get(), Text("record_shortcut"));
    center_.press(standard);
    EXPECT_EQ(fired_, 1);
    recorder_->becomeFirstResponder();
    recorder_->becomeFirstResponder();
    recorder_.reset();
    center_.press(standard);
    EXPECT_EQ(fired_, 2) << "a recorder that goes away while recording";
    EXPECT_EQ(told, (std::vector<bool>{false, true, false}));
}

TEST_F(RecorderCocoaTest, TheKeyboardIsItsOwnAsLongAsItRecords) {
    const Shortcut taken{keyK, carbon_modifiers::control};
    center_.refuse(taken);
    userInterface_.setAnswer(AlertAnswer::secondButton);
    bool wasTakenDuringAlert = true;
    userInterface_.duringAlert = [&] { wasTakenDuringAlert = center_.isKeyboardTaken(); };
    EXPECT_TRUE(center_.press(taken)) << "though another program has it";
    EXPECT_EQ(stored(), taken);
    EXPECT_FALSE(wasTakenDuringAlert);
    EXPECT_FALSE(center_.isKeyboardTaken());

    recorder_->becomeFirstResponder();
    EXPECT_TRUE(center_.isKeyboardTaken());
    EXPECT_TRUE(center_.release(taken)) << "of the key that started it";
    EXPECT_TRUE(recorder_->isRecording().get());
    center_.press({key_codes::escape, 0});
    EXPECT_FALSE(center_.isKeyboardTaken());
    EXPECT_EQ(center_.keysPassedOn(), 0);
    recorder_->becomeFirstResponder();
    center_.press({key_codes::tab, 0});
    EXPECT_FALSE(center_.isKeyboardTaken());
    EXPECT_EQ(center_.keysPassedOn(), 1);

    recorder_->becomeFirstResponder();
    center_.loseKeyboard();
    EXPECT_FALSE(recorder_->isRecording().get());
    recorder_->becomeFirstResponder();
    recorder_.reset();
    EXPECT_FALSE(center_.isKeyboardTaken());
}

TEST_F(RecorderCocoaTest, KeysWithoutModifiersEndOrClear) {
    const auto isRecordingAfter = [&](const KeyEvent& event, bool isSwallowed) {
        recorder_->becomeFirstResponder();
        EXPECT_EQ(recorder_->handleKeyDown(event), isSwallowed) << event.keyCode;
        return recorder_->isRecording().get();
    };
    EXPECT_FALSE(isRecordingAfter(keyDown(key_codes::tab), false));
    EXPECT_FALSE(isRecordingAfter(keyDown(key_codes::escape, modifier_flags::capsLock), true));
    EXPECT_EQ(stored(), standard);
    int requests = 0;
    const Subscription subscription = recorder_->focusRequest().subscribe([&] { ++requests; });
    EXPECT_TRUE(isRecordingAfter(keyDown(key_codes::deleteKey), true));
    EXPECT_EQ(preferences_.value(key), PreferenceValue(false));
    EXPECT_EQ(recorder_->stringValue().get(), Text());
    EXPECT_EQ(requests, 1);
    shortcuts_.setShortcut(standard, name_);
    EXPECT_EQ(recorder_->stringValue().get(), textOf(standard)) << "changed elsewhere";
    EXPECT_TRUE(isRecordingAfter(keyDown(key_codes::forwardDelete), true));
    EXPECT_EQ(stored(), std::nullopt);
    EXPECT_EQ(userInterface_.beeps(), 0);
}

TEST_F(RecorderCocoaTest, ATypingKeyIsRefusedAndAFunctionKeyIsNot) {
    for (const KeyEvent& event :
         {keyDown(keyK), keyDown(keyK, modifier_flags::shift), keyDown(key_codes::tab, modifier_flags::shift),
          keyDown(key_codes::unknown, modifier_flags::command)}) {
        EXPECT_TRUE(recorder_->handleKeyDown(event));
        EXPECT_TRUE(recorder_->isRecording().get());
    }
    EXPECT_EQ(userInterface_.beeps(), 4);
    EXPECT_FALSE(recorder_->handleKeyDown(keyDown(56, modifier_flags::shift))) << "the Shift key itself";
    EXPECT_EQ(stored(), standard);
    EXPECT_TRUE(recorder_->handleKeyDown(keyDown(key_codes::f12, modifier_flags::shift)));
    EXPECT_EQ(stored(), (Shortcut{key_codes::f12, carbon_modifiers::shift}));
    EXPECT_FALSE(recorder_->isRecording().get());
    EXPECT_FALSE(recorder_->handleKeyDown(keyDown(keyK, modifier_flags::command))) << "no longer recording";
}

TEST_F(RecorderCocoaTest, ACombinationIsStoredRegisteredAndShown) {
    const Shortcut chosen{keyK, carbon_modifiers::command | carbon_modifiers::control};
    EXPECT_TRUE(recorder_->handleKeyDown(
        keyDown(keyK, modifier_flags::command | modifier_flags::control | modifier_flags::capsLock)));
    EXPECT_EQ(stored(), chosen);
    EXPECT_EQ(center_.registrations(chosen), 1U);
    EXPECT_EQ(center_.registrations(standard), 0U);
    EXPECT_EQ(recorder_->stringValue().get(), textOf(chosen));
    center_.press(chosen);
    EXPECT_EQ(fired_, 1);
}

TEST_F(RecorderCocoaTest, WhatTheDesktopAnswersLaterIsShownThen) {
    const Shortcut chosen{keyK, carbon_modifiers::command};
    center_.setAnswersLate(true);
    center_.setDesktopTrigger(chosen, "Super+Space");
    EXPECT_TRUE(recorder_->handleKeyDown(keyDown(keyK, modifier_flags::command)));
    EXPECT_EQ(recorder_->stringValue().get(), textOf(chosen));
    center_.answer();
    EXPECT_EQ(recorder_->stringValue().get(), Text("Super+Space"));
    EXPECT_EQ(makeRecorder()->stringValue().get(), Text("Super+Space"));

    center_.refuse(standard);
    shortcuts_.setShortcut(standard, name_);
    EXPECT_EQ(recorder_->problem().get(), Text());
    center_.answer();
    EXPECT_EQ(recorder_->stringValue().get(), textOf(standard));
    EXPECT_EQ(recorder_->problem().get(), Text("Another program uses this shortcut."));
}

TEST_F(RecorderCocoaTest, AConflictAsksAndGivesTheFocusBack) {
    int requests = 0;
    const Subscription subscription = recorder_->focusRequest().subscribe([&] {
        ++requests;
        recorder_->becomeFirstResponder();
    });
    EXPECT_TRUE(recorder_->handleKeyDown(keyDown(keyW, modifier_flags::command)));
    ASSERT_EQ(userInterface_.alerts().size(), 1U);
    EXPECT_EQ(userInterface_.alerts().back().messageText, Text("in Close!"));
    EXPECT_EQ(userInterface_.alerts().back().secondButton, Text());

    const Shortcut taken{keyK, carbon_modifiers::control};
    center_.refuse(taken);
    for (const AlertAnswer answer : {AlertAnswer::firstButton, AlertAnswer::none}) {
        userInterface_.setAnswer(answer);
        EXPECT_TRUE(recorder_->handleKeyDown(keyDown(keyK, modifier_flags::control)));
        EXPECT_EQ(stored(), standard);
        EXPECT_TRUE(recorder_->isRecording().get());
    }
    userInterface_.setAnswer(AlertAnswer::secondButton);
    EXPECT_TRUE(recorder_->handleKeyDown(keyDown(keyK, modifier_flags::control)));
    EXPECT_EQ(stored(), taken);
    EXPECT_FALSE(recorder_->isRecording().get());
    EXPECT_EQ(requests, 3) << "recording is over";
    EXPECT_EQ(recorder_->problem().get(), Text("Another program uses this shortcut."));
    center_.allow(taken);
    recorder_->retry();
    EXPECT_EQ(recorder_->problem().get(), Text());

    center_.refuse({key_codes::f12, 0});
    recorder_->becomeFirstResponder();
    EXPECT_TRUE(recorder_->handleKeyDown(keyDown(key_codes::f12)));
    EXPECT_EQ(stored(), (Shortcut{key_codes::f12, 0})) << "F12 is not compared with the system's shortcuts";
    EXPECT_EQ(userInterface_.alerts().size(), 4U);
}

} // namespace
} // namespace tovrel
