#include "qt/QtKeyEvents.h"

#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include "model/VirtualKeyCodes.h"

namespace tovrel {
namespace {

KeyEvent converted(int key, Qt::KeyboardModifiers modifiers, quint32 keysym = 0, quint32 scanCode = 0) {
    const auto keyCodes = [](std::uint32_t code) {
        return code == 33 ? std::optional<std::uint32_t>(35) : std::nullopt;
    };
    return keyEventFrom(QKeyEvent(QEvent::KeyPress, key, modifiers, scanCode, keysym, 0), keyCodes);
}

TEST(QtKeyEventsTest, CharactersAreThoseOfTheKeyAndShift) {
    struct Case {
        KeyEvent event;
        std::optional<Text> characters;
    };
    const std::vector<Case> cases{
        {converted(Qt::Key_C, Qt::ControlModifier, XKB_KEY_c), "c"},
        {converted(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier, XKB_KEY_P), "P"},
        {converted(Qt::Key_Exclam, Qt::ShiftModifier, XKB_KEY_exclam), "!"},
        {converted(Qt::Key_Odiaeresis, {}, XKB_KEY_odiaeresis), "ö"},
        {converted(Qt::Key_1, Qt::KeypadModifier, XKB_KEY_KP_1), "1"},
        {converted(Qt::Key_Space, Qt::ShiftModifier, XKB_KEY_space), " "},
        // A Russian layout gives the letter itself in typing, and the key's Latin letter in shortcuts.
        {converted(0x042B, {}, XKB_KEY_Cyrillic_yeru), "ы"},
        {converted(Qt::Key_S, Qt::ControlModifier, XKB_KEY_Cyrillic_yeru), "s"},
        {converted(0x042B, Qt::ControlModifier, XKB_KEY_Cyrillic_yeru), "ы"},
        // Keys that edit or move type nothing.
        {converted(Qt::Key_Backspace, Qt::ShiftModifier, XKB_KEY_BackSpace), std::nullopt},
        {converted(Qt::Key_Tab, {}, XKB_KEY_Tab), std::nullopt},
        {converted(Qt::Key_Delete, {}, XKB_KEY_Delete), std::nullopt},
        {converted(Qt::Key_Left, Qt::ShiftModifier, XKB_KEY_Left), std::nullopt},
        {converted(Qt::Key_Return, {}, XKB_KEY_Return), std::nullopt},
        // Other window systems give no native key.
        {converted(Qt::Key_V, Qt::ControlModifier), "v"},
        {converted(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier), "V"},
        {converted(Qt::Key_Comma, Qt::ControlModifier), ","},
        {converted(Qt::Key_F5, {}), std::nullopt},
    };
    for (std::size_t i = 0; i < cases.size(); ++i) {
        EXPECT_EQ(cases[i].event.charactersIgnoringModifiers, cases[i].characters) << i;
    }
}

TEST(QtKeyEventsTest, KeyCodesAndModifiers) {
    EXPECT_EQ(converted(Qt::Key_Return, {}).keyCode, 36U);
    EXPECT_EQ(converted(Qt::Key_Enter, Qt::KeypadModifier).keyCode, 76U);
    EXPECT_EQ(converted(Qt::Key_Escape, {}).keyCode, 53U);
    EXPECT_EQ(converted(Qt::Key_Up, {}).keyCode, 126U);
    EXPECT_EQ(converted(Qt::Key_Down, {}).keyCode, 125U);
    EXPECT_EQ(converted(Qt::Key_P, {}, XKB_KEY_p, 33).keyCode, 35U);
    EXPECT_EQ(converted(Qt::Key_P, {}, XKB_KEY_p, 34).keyCode, key_codes::unknown);
    EXPECT_EQ(converted(Qt::Key_P, {}).keyCode, key_codes::unknown);

    EXPECT_EQ(converted(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier).modifierFlags,
              modifier_flags::command | modifier_flags::shift);
    EXPECT_EQ(converted(Qt::Key_P, Qt::AltModifier | Qt::MetaModifier).modifierFlags,
              modifier_flags::option | modifier_flags::control);
    EXPECT_EQ(converted(Qt::Key_E, Qt::GroupSwitchModifier).modifierFlags, 0U); // AltGr
    EXPECT_EQ(keyEventFrom(QKeyEvent(QEvent::KeyRelease, Qt::Key_P, {}), nullptr).type, KeyEventType::keyUp);
}

} // namespace
} // namespace tovrel
