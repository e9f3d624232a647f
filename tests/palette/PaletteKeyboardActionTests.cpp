#include "palette/PaletteKeyboardAction.h"

#include <gtest/gtest.h>

namespace tovrel {
namespace {

using namespace modifier_flags;
using Action = PaletteKeyboardAction;

class PaletteKeyboardActionTest : public testing::Test {
  protected:
    std::optional<PaletteKeyboardAction> action(std::uint32_t keyCode, std::optional<Text> characters,
                                                ModifierFlags flags) const {
        return keyboardAction({KeyEventType::keyDown, keyCode, std::move(characters), flags}, textServices_);
    }

    TextServices textServices_{"en"};
};

TEST_F(PaletteKeyboardActionTest, KeysWithAMeaningOfTheirOwn) {
    for (const ModifierFlags flags : {ModifierFlags{0}, command, shift | option, capsLock}) {
        EXPECT_EQ(action(53, "\x1B", flags), Action(Dismiss{}));
        EXPECT_EQ(action(36, "\r", flags), Action(ExecuteSelection{}));
        EXPECT_EQ(action(76, "\x03", flags), Action(ExecuteSelection{}));
        EXPECT_EQ(action(125, std::nullopt, flags), Action(MoveSelection{1}));
        EXPECT_EQ(action(126, std::nullopt, flags), Action(MoveSelection{-1}));
    }
    EXPECT_EQ(action(13, "W", command | shift), Action(Dismiss{}));
    EXPECT_EQ(action(45, "n", control), Action(MoveSelection{1}));
    EXPECT_EQ(action(35, "P", control | capsLock), Action(MoveSelection{-1}));
    EXPECT_EQ(keyboardAction({KeyEventType::keyUp, 53, std::nullopt, 0}, textServices_), std::nullopt);
}

TEST_F(PaletteKeyboardActionTest, ACharacterWithAModifierIsAShortcut) {
    EXPECT_EQ(action(1, "S", command | shift), Action(ExecuteShortcut{"⌘⇧S"}));
    EXPECT_EQ(action(45, "n", control | option), Action(ExecuteShortcut{"⌥⌃N"}));
    EXPECT_EQ(action(0, "A", shift), Action(ExecuteShortcut{"⇧A"}));
    EXPECT_EQ(action(27, "ß", command | option | shift | control), Action(ExecuteShortcut{"⌘⇧⌥⌃SS"}));
}

TEST_F(PaletteKeyboardActionTest, TheRestIsForTheSearchField) {
    EXPECT_EQ(action(13, "w", 0), std::nullopt);
    EXPECT_EQ(action(0, "A", capsLock | function), std::nullopt);
    EXPECT_EQ(action(123, std::nullopt, command), std::nullopt);
    EXPECT_EQ(action(51, "", shift), std::nullopt);
}

} // namespace
} // namespace tovrel
