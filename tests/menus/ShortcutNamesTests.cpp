#include "menus/ShortcutNames.h"

#include <gtest/gtest.h>

namespace tovrel {
namespace {

TEST(ShortcutNames, SpellsModifiersAndKeys) {
    EXPECT_EQ(shortcutWithKeyNames("⌘⇧S"), "Ctrl+Shift+S");
    EXPECT_EQ(shortcutWithKeyNames("⌘⇧⌥⌃Ж"), "Ctrl+Shift+Alt+Super+Ж");
    EXPECT_EQ(shortcutWithKeyNames("⌥←"), "Alt+Left");
    EXPECT_EQ(shortcutWithKeyNames("⌘⇞"), "Ctrl+Page Up");
    EXPECT_EQ(shortcutWithKeyNames("F11"), "F11");
    EXPECT_EQ(shortcutWithKeyNames("⌦"), "Delete");
    EXPECT_EQ(shortcutWithKeyNames("⌘+"), "Ctrl++");
    EXPECT_EQ(shortcutWithKeyNames("⌘⌃"), "Ctrl+⌃"); // a key, not a modifier
    EXPECT_EQ(shortcutWithKeyNames(""), "");
}

TEST(ShortcutNames, SpellsSingleKeycaps) {
    EXPECT_EQ(keycapWithKeyName("⌘"), "Ctrl");
    EXPECT_EQ(keycapWithKeyName("⌃"), "Super");
    EXPECT_EQ(keycapWithKeyName("⇟"), "Page Down");
    EXPECT_EQ(keycapWithKeyName("↑"), "↑");
    EXPECT_EQ(keycapWithKeyName("F10"), "F10");
}

} // namespace
} // namespace tovrel
