#include "KeyboardShortcuts/KeyboardShortcuts.h"

#include <sstream>

#include <gtest/gtest.h>

#include "KeyboardShortcuts/SymbolicText.h"
#include "platform/memory/MemoryHotKeyCenter.h"
#include "platform/memory/MemoryUserInterface.h"
#include "stores/FailingPreferencesDomain.h"

namespace tovrel {
namespace {

constexpr const char* key = "KeyboardShortcuts_togglePalette";
constexpr Shortcut standard{35, 768};
constexpr Shortcut other{0, 4096};

class KeyboardShortcutsTest : public testing::Test {
  protected:
    KeyboardShortcuts::Name toggle() { return shortcuts_.makeName("togglePalette", standard); }

    TextServices textServices_{"en"};
    FailingPreferencesDomain preferences_;
    MemoryHotKeyCenter center_;
    MemoryUserInterface userInterface_;
    std::ostringstream output_;
    KeyboardShortcuts shortcuts_{preferences_, center_, userInterface_, textServices_, output_};
};

TEST_F(KeyboardShortcutsTest, TheDefaultIsStoredAndRegisteredOnlyWhenNothingIsStored) {
    const auto name = toggle();
    EXPECT_EQ(preferences_.value(key),
              PreferenceValue(Text(R"({"carbonKeyCode":35,"carbonModifiers":768})")));
    EXPECT_EQ(center_.registrations(standard), 1U);

    shortcuts_.setShortcut(std::nullopt, name);
    EXPECT_EQ(preferences_.value(key), PreferenceValue(false));
    EXPECT_EQ(center_.registrations(standard), 0U);
    EXPECT_EQ(shortcuts_.getShortcut(toggle()), std::nullopt) << "a removed shortcut does not come back";
}

TEST_F(KeyboardShortcutsTest, ADefaultThatCannotBeStoredHoldsUntilItCanBe) {
    for (bool FailingPreferencesDomain::*const obstacle :
         {&FailingPreferencesDomain::refusesReads, &FailingPreferencesDomain::refusesWrites}) {
        preferences_.remove(key);
        preferences_.*obstacle = true;
        KeyboardShortcuts shortcuts(preferences_, center_, userInterface_, textServices_, output_);
        const auto name = shortcuts.makeName("togglePalette", standard);
        int calls = 0;
        shortcuts.onKeyDown(name, [&] { ++calls; });
        EXPECT_EQ(shortcuts.getShortcut(name), standard);
        EXPECT_TRUE(center_.press(standard));
        EXPECT_EQ(calls, 1);
        EXPECT_FALSE(shortcuts.storeDefaults());
        preferences_.*obstacle = false;
        EXPECT_EQ(preferences_.value(key), std::nullopt);
        EXPECT_TRUE(shortcuts.storeDefaults());
        EXPECT_TRUE(preferences_.value(key));
        EXPECT_TRUE(center_.press(standard));
        EXPECT_EQ(calls, 2);
        EXPECT_EQ(center_.registrations(standard), 1U);
    }
}

TEST_F(KeyboardShortcutsTest, TheUsersShortcutTakesTheDefaultsPlaceOnceItCanBeRead) {
    for (const PreferenceValue& users :
         {PreferenceValue(Text(R"({"carbonKeyCode":0,"carbonModifiers":4096})")), PreferenceValue(false)}) {
        preferences_.set(key, users);
        preferences_.refusesReads = true;
        KeyboardShortcuts shortcuts(preferences_, center_, userInterface_, textServices_, output_);
        const auto name = shortcuts.makeName("togglePalette", standard);
        int calls = 0;
        shortcuts.onKeyDown(name, [&] { ++calls; });
        preferences_.refusesReads = false;
        EXPECT_TRUE(shortcuts.storeDefaults());
        EXPECT_EQ(preferences_.value(key), users);
        EXPECT_FALSE(center_.press(standard));
        const bool hasShortcut = users != PreferenceValue(false);
        EXPECT_EQ(center_.press(other), hasShortcut);
        EXPECT_EQ(calls, hasShortcut ? 1 : 0);
    }
}

TEST_F(KeyboardShortcutsTest, AShortcutThatCannotBeStoredLeavesTheOneBefore) {
    const auto name = toggle();
    int calls = 0;
    int changes = 0;
    shortcuts_.onKeyDown(name, [&] { ++calls; });
    const auto subscription = shortcuts_.onShortcutByNameDidChange([&](const auto&) { ++changes; });
    preferences_.refusesWrites = true;
    shortcuts_.setShortcut(other, name);
    shortcuts_.setShortcut(std::nullopt, name);
    EXPECT_EQ(changes, 2) << "what shows it must show what holds";
    EXPECT_FALSE(center_.press(other));
    EXPECT_TRUE(center_.press(standard));
    EXPECT_EQ(calls, 1);
}

TEST_F(KeyboardShortcutsTest, WhatIsNoShortcutIsLeftAlone) {
    for (const PreferenceValue& stored :
         {PreferenceValue(Text("nonsense")), PreferenceValue(Text(R"({"carbonKeyCode":35})")),
          PreferenceValue(Text(R"({"carbonKeyCode":-1,"carbonModifiers":768})")),
          PreferenceValue(Text(R"({"carbonKeyCode":65536,"carbonModifiers":768})")),
          PreferenceValue(Text(R"({"carbonKeyCode":35,"carbonModifiers":4294967296})")),
          PreferenceValue(Text(R"({"carbonKeyCode":"35","carbonModifiers":true})")), PreferenceValue(true),
          PreferenceValue(PreferenceData{R"({"carbonKeyCode":35,"carbonModifiers":768})"})}) {
        preferences_.set(key, stored);
        const auto name = toggle();
        shortcuts_.onKeyDown(name, [] {});
        EXPECT_EQ(shortcuts_.getShortcut(name), std::nullopt);
        shortcuts_.setShortcut(std::nullopt, name);
        EXPECT_EQ(preferences_.value(key), stored);
        EXPECT_EQ(center_.registrations(standard), 0U);
    }
}

TEST_F(KeyboardShortcutsTest, HandlersAreCalledInOrderForTheStoredShortcutOnly) {
    const auto name = toggle();
    std::string calls;
    shortcuts_.onKeyDown(name, [&] { calls += "a"; });
    shortcuts_.onKeyDown(name, [&] { calls += "b"; });
    shortcuts_.onKeyUp(name, [&] { calls += "u"; });
    EXPECT_EQ(center_.registrations(standard), 1U) << "several handlers, one registration";
    EXPECT_TRUE(center_.press(standard));
    EXPECT_TRUE(center_.release(standard));
    EXPECT_EQ(calls, "abu");

    shortcuts_.setShortcut(other, name);
    EXPECT_FALSE(center_.press(standard));
    EXPECT_TRUE(center_.press(other));
    EXPECT_EQ(calls, "abuab");

    // Another process changes it, so the registered combination is no longer the name's.
    preferences_.set(key, false);
    center_.press(other);
    EXPECT_EQ(calls, "abuab");
}

TEST_F(KeyboardShortcutsTest, DisablingAndEnablingLeavesOneRegistration) {
    const auto name = toggle();
    shortcuts_.enable({name});
    EXPECT_EQ(center_.registrations(standard), 1U);
    shortcuts_.disable({name});
    shortcuts_.disable({name});
    EXPECT_EQ(center_.registrations(standard), 0U);
    shortcuts_.enable({name});
    EXPECT_EQ(center_.registrations(standard), 1U);
}

TEST_F(KeyboardShortcutsTest, ARefusedCombinationIsReportedInOneLine) {
    center_.refuse(standard);
    int calls = 0;
    const auto name = toggle();
    shortcuts_.onKeyDown(name, [&] { ++calls; });
    EXPECT_EQ(output_.str(), "Error registering hotkey ⇧⌘P: 10\n");
    EXPECT_FALSE(center_.press(standard));
    EXPECT_EQ(shortcuts_.getShortcut(name), standard);
    shortcuts_.setShortcut(other, name);
    EXPECT_TRUE(center_.press(other));
    EXPECT_EQ(calls, 1);
}

TEST_F(KeyboardShortcutsTest, ARefusedCombinationIsTriedAgain) {
    center_.refuse(standard);
    int calls = 0;
    int told = 0;
    const auto name = toggle();
    shortcuts_.onKeyDown(name, [&] { ++calls; });
    const auto subscription = shortcuts_.onAvailabilityDidChange([&] { ++told; });
    EXPECT_EQ(shortcuts_.refusal(name), HotKeyError::takenByAnother);
    shortcuts_.retryRefused();
    EXPECT_EQ(told, 0);
    center_.allow(standard);
    shortcuts_.retryRefused();
    EXPECT_EQ(shortcuts_.refusal(name), std::nullopt);
    EXPECT_TRUE(center_.press(standard));
    EXPECT_EQ(std::pair(calls, told), std::pair(1, 1));

    // Another keyboard takes it away and gives it back.
    center_.refuse(standard);
    center_.changeKeyboard();
    EXPECT_EQ(shortcuts_.refusal(name), HotKeyError::takenByAnother);
    EXPECT_FALSE(center_.press(standard));
    center_.allow(standard);
    center_.changeKeyboard();
    EXPECT_TRUE(center_.press(standard));
    EXPECT_EQ(std::pair(calls, told), std::pair(2, 3));
    EXPECT_EQ(center_.registrations(standard), 1U);
    EXPECT_EQ(output_.str(), "Error registering hotkey ⇧⌘P: 10\n") << "once";
}

TEST_F(KeyboardShortcutsTest, ALateAnswerCountsFromWhenItComes) {
    center_.setAnswersLate(true);
    int calls = 0;
    int told = 0;
    const auto name = toggle();
    shortcuts_.onKeyDown(name, [&] { ++calls; });
    const auto subscription = shortcuts_.onAvailabilityDidChange([&] { ++told; });
    EXPECT_EQ(shortcuts_.refusal(name), std::nullopt) << "not known yet";
    EXPECT_FALSE(center_.press(standard));
    center_.answer();
    EXPECT_TRUE(center_.press(standard));
    EXPECT_EQ(std::pair(calls, told), std::pair(1, 0));

    center_.refuse(other);
    shortcuts_.setShortcut(other, name);
    EXPECT_EQ(std::pair(shortcuts_.refusal(name), told), std::pair(std::optional<HotKeyError>(), 0));
    EXPECT_EQ(output_.str(), "");
    center_.answer();
    EXPECT_EQ(std::pair(shortcuts_.refusal(name), told),
              std::pair(std::optional(HotKeyError::takenByAnother), 1));
    EXPECT_EQ(output_.str(), "Error registering hotkey ⌃\uFFFD: 10\n");

    center_.allow(other);
    shortcuts_.retryRefused();
    shortcuts_.retryRefused(); // asked already
    EXPECT_EQ(shortcuts_.refusal(name), HotKeyError::takenByAnother) << "until the desktop says otherwise";
    center_.answer();
    EXPECT_EQ(std::pair(shortcuts_.refusal(name), told), std::pair(std::optional<HotKeyError>(), 2));
    EXPECT_EQ(center_.registrations(other), 1U);
    EXPECT_TRUE(center_.press(other));
    EXPECT_EQ(calls, 2);
}

TEST_F(KeyboardShortcutsTest, WhatIsGivenBackBeforeTheAnswerDoesNotComeAlive) {
    center_.setAnswersLate(true);
    const auto name = toggle();
    int calls = 0;
    shortcuts_.onKeyDown(name, [&] { ++calls; });
    shortcuts_.disable({name});
    center_.answer();
    EXPECT_EQ(center_.registrations(standard), 0U);

    shortcuts_.enable({name});
    shortcuts_.setShortcut(other, name);
    shortcuts_.setShortcut(standard, name);
    center_.answer();
    EXPECT_EQ(center_.registrations(other), 0U);
    EXPECT_EQ(center_.registrations(standard), 1U) << "asked for anew meanwhile";

    // A shortcut that is answered while a menu is open is matched raw, and requested again when the menu
    // closes.
    shortcuts_.setShortcut(other, name);
    userInterface_.setMenuOpen(true);
    center_.answer();
    EXPECT_EQ(center_.registrations(other), 0U);
    EXPECT_TRUE(center_.press(other));
    EXPECT_TRUE(center_.release(other));
    userInterface_.setMenuOpen(false);
    center_.answer();
    EXPECT_EQ(center_.registrations(other), 1U);
    EXPECT_TRUE(center_.press(other));
    EXPECT_EQ(calls, 2);

    preferences_.remove(key);
    {
        KeyboardShortcuts gone(preferences_, center_, userInterface_, textServices_, output_);
        gone.makeName("togglePalette", standard);
    }
    center_.answer();
    EXPECT_EQ(center_.registrations(standard), 0U);
}

TEST_F(KeyboardShortcutsTest, TheFirstAnswerMayComeWhileAMenuIsOpen) {
    center_.setAnswersLate(true);
    const auto name = toggle();
    int calls = 0;
    shortcuts_.onKeyDown(name, [&] { ++calls; });
    userInterface_.setMenuOpen(true);
    center_.answer();
    EXPECT_EQ(center_.registrations(standard), 0U);
    EXPECT_TRUE(center_.press(standard));
    EXPECT_TRUE(center_.release(standard));
    userInterface_.setMenuOpen(false);
    center_.answer();
    EXPECT_EQ(center_.registrations(standard), 1U);
    EXPECT_EQ(calls, 1);
}

TEST_F(KeyboardShortcutsTest, TheDesktopsTriggerIsToldWithItsAnswer) {
    center_.setAnswersLate(true);
    center_.setDesktopTrigger(standard, "Super+Space");
    const auto name = toggle();
    int told = 0;
    const auto subscription = shortcuts_.onAvailabilityDidChange([&] { ++told; });
    EXPECT_EQ(shortcuts_.desktopTrigger(name), std::nullopt);
    center_.answer();
    EXPECT_EQ(std::pair(shortcuts_.desktopTrigger(name), told),
              std::pair(std::optional<Text>("Super+Space"), 1));
    shortcuts_.setShortcut(other, name);
    center_.answer();
    EXPECT_EQ(shortcuts_.desktopTrigger(name), std::nullopt);
}

TEST_F(KeyboardShortcutsTest, TheReleaseCountsThoughAMenuOpensOrClosesBeforeIt) {
    const auto name = toggle();
    std::string calls;
    shortcuts_.onKeyDown(name, [&] {
        calls += "d";
        userInterface_.closeMenu();
    });
    shortcuts_.onKeyUp(name, [&] { calls += "u"; });
    const KeyEvent releaseWithoutModifiers{KeyEventType::keyUp, 35, std::nullopt, 0};
    userInterface_.setMenuOpen(true);
    EXPECT_TRUE(center_.press(standard));
    EXPECT_TRUE(center_.rawKey(releaseWithoutModifiers));
    EXPECT_FALSE(center_.listensToRawKeys());

    EXPECT_TRUE(center_.press(standard));
    userInterface_.setMenuOpen(true);
    EXPECT_TRUE(center_.rawKey(releaseWithoutModifiers));
    EXPECT_FALSE(center_.rawKey(releaseWithoutModifiers));
    userInterface_.setMenuOpen(false);
    EXPECT_EQ(calls, "dudu");
}

TEST_F(KeyboardShortcutsTest, WhileAMenuIsOpenTheKeysAreMatchedRaw) {
    const auto name = toggle();
    int downs = 0;
    int ups = 0;
    shortcuts_.onKeyDown(name, [&] { ++downs; });
    shortcuts_.onKeyUp(name, [&] { ++ups; });
    userInterface_.setMenuOpen(true);
    EXPECT_EQ(center_.registrations(standard), 0U);
    EXPECT_TRUE(center_.press(standard));
    EXPECT_TRUE(center_.release(standard));
    EXPECT_FALSE(center_.press(other));
    EXPECT_EQ(std::pair(downs, ups), std::pair(1, 1));

    center_.refuse(standard); // taken by another program meanwhile
    userInterface_.setMenuOpen(false);
    EXPECT_FALSE(center_.listensToRawKeys());
    EXPECT_FALSE(center_.press(standard));
    EXPECT_EQ(downs, 1);
}

TEST_F(KeyboardShortcutsTest, ObserversAreToldOfEachChange) {
    const auto name = toggle();
    int changes = 0;
    const auto subscription = shortcuts_.onShortcutByNameDidChange([&](const auto& changed) {
        EXPECT_EQ(changed.rawValue, "togglePalette");
        ++changes;
    });
    shortcuts_.setShortcut(standard, name);
    shortcuts_.setShortcut(std::nullopt, name);
    shortcuts_.setShortcut(std::nullopt, name); // nothing left to remove
    EXPECT_EQ(changes, 2);
}

TEST(SymbolicTextTest, ModifiersThenKey) {
    const TextServices textServices("en");
    const auto layout = [](std::uint32_t keyCode) {
        return keyCode == 41 ? std::optional<Text>("ö") : std::nullopt;
    };
    const auto text = [&](std::int64_t keyCode, std::int64_t modifiers) {
        return symbolicText({keyCode, modifiers}, layout, textServices, "leertaste");
    };
    EXPECT_EQ(text(41, 0x100 | 0x200 | 0x800 | 0x1000 | 0x20000), "⌃⌥⇧⌘\U0001F310\uFE0EÖ");
    EXPECT_EQ(text(7, 0x100), "⌘\uFFFD");
    EXPECT_EQ(text(49, 0x800), "⌥Leertaste");
    std::string keys;
    for (const std::int64_t keyCode : {36, 51, 117, 119, 53, 114, 115, 48, 116, 121, 126, 124, 125, 123}) {
        keys += text(keyCode, 0).utf8() + " ";
    }
    EXPECT_EQ(keys, "↩ ⌫ ⌦ ↘ ⎋ ?\u20DD ↖ ⇥ ⇞ ⇟ ↑ → ↓ ← ");
    std::string functionKeys;
    for (const std::int64_t keyCode :
         {122, 120, 99, 118, 96, 97, 98, 100, 101, 109, 103, 111, 105, 107, 113, 106, 64, 79, 80, 90}) {
        functionKeys += text(keyCode, 0).utf8();
    }
    EXPECT_EQ(functionKeys, "F1F2F3F4F5F6F7F8F9F10F11F12F13F14F15F16F17F18F19F20");
    std::string pad;
    for (const std::int64_t keyCode :
         {82, 83, 84, 85, 86, 87, 88, 89, 91, 92, 71, 65, 75, 76, 81, 78, 67, 69}) {
        const std::string padKey = text(keyCode, 0).utf8();
        EXPECT_TRUE(padKey.ends_with("\u20E3"));
        pad += padKey.substr(0, padKey.size() - std::string("\u20E3").size());
    }
    EXPECT_EQ(pad, "0123456789☒./↩=-*+");
}

} // namespace
} // namespace tovrel
