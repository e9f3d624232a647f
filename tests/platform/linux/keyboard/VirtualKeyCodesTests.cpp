#include "platform/linux/keyboard/VirtualKeyCodes.h"

#include <set>

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace tovrel {
namespace {

TEST(VirtualKeyCodes, NameOnePositionEachInBothDirections) {
    EXPECT_EQ(evdevKey(35), KEY_P);
    EXPECT_EQ(xkbKeyCode(35), KEY_P + 8);
    EXPECT_EQ(evdevKey(122), KEY_F1);
    EXPECT_EQ(evdevKey(90), KEY_F20);
    EXPECT_EQ(evdevKey(126), KEY_UP);
    EXPECT_EQ(evdevKey(92), KEY_KP9);
    EXPECT_EQ(evdevKey(10), KEY_102ND);
    EXPECT_EQ(evdevKey(55), KEY_LEFTCTRL);
    EXPECT_EQ(evdevKey(59), KEY_LEFTMETA);

    std::set<EvdevKey> met;
    for (std::uint32_t code = 0; code < 300; ++code) {
        if (const auto key = evdevKey(code)) {
            EXPECT_TRUE(met.insert(*key).second) << code;
            EXPECT_EQ(virtualKeyCode(*key), code);
            EXPECT_EQ(virtualKeyCodeOfXkb(xkbKeyCode(code).value()), code);
        }
    }
    // All letters, digits and function keys to F20.
    for (const auto& [first, last] :
         {std::pair{KEY_1, KEY_0}, std::pair{KEY_Q, KEY_P}, std::pair{KEY_A, KEY_L}, std::pair{KEY_Z, KEY_M},
          std::pair{KEY_F1, KEY_F10}, std::pair{KEY_F11, KEY_F12}, std::pair{KEY_F13, KEY_F20}}) {
        for (int key = first; key <= last; ++key) {
            EXPECT_TRUE(met.contains(static_cast<EvdevKey>(key))) << key;
        }
    }
    EXPECT_EQ(evdevKey(63), std::nullopt) << "the Function key";
    EXPECT_EQ(virtualKeyCode(KEY_RESERVED), std::nullopt);
    EXPECT_EQ(virtualKeyCode(KEY_CAMERA), std::nullopt);
    EXPECT_EQ(virtualKeyCodeOfXkb(7), std::nullopt);
    EXPECT_EQ(virtualKeyCodeOfXkb(65536 + 8 + KEY_P), std::nullopt);
}

} // namespace
} // namespace tovrel
