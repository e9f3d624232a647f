#include "qt/QtKeyEvents.h"

#include <QChar>
#include <QString>
#include <array>

#include <xkbcommon/xkbcommon.h>

#include "model/VirtualKeyCodes.h"

namespace tovrel {
namespace {

std::optional<std::uint32_t> keyCodeByMeaning(int key) {
    switch (key) {
    case Qt::Key_Return:
        return key_codes::returnKey;
    case Qt::Key_Enter:
        return key_codes::keypadEnter;
    case Qt::Key_Escape:
        return key_codes::escape;
    case Qt::Key_Down:
        return key_codes::downArrow;
    case Qt::Key_Up:
        return key_codes::upArrow;
    default:
        return std::nullopt;
    }
}

std::uint32_t keyCodeOf(const QKeyEvent& event, const KeyCodeFromScanCode& keyCodeFromScanCode) {
    if (const auto byMeaning = keyCodeByMeaning(event.key())) {
        return *byMeaning;
    }
    return keyCodeFromScanCode ? keyCodeFromScanCode(event.nativeScanCode()).value_or(key_codes::unknown)
                               : key_codes::unknown;
}

ModifierFlags flagsOf(Qt::KeyboardModifiers modifiers) {
    ModifierFlags flags = 0;
    if (modifiers.testFlag(Qt::ShiftModifier)) {
        flags |= modifier_flags::shift;
    }
    if (modifiers.testFlag(Qt::ControlModifier)) {
        flags |= modifier_flags::command;
    }
    if (modifiers.testFlag(Qt::AltModifier)) {
        flags |= modifier_flags::option;
    }
    if (modifiers.testFlag(Qt::MetaModifier)) {
        flags |= modifier_flags::control;
    }
    return flags;
}

bool isPrintable(char32_t character) {
    return character >= 0x20 && character != 0x7F && !(character >= 0x80 && character < 0xA0);
}

/// Qt's code of a key that types a character is that character in upper case.
std::optional<Text> charactersOfKey(const QKeyEvent& event) {
    const auto code = static_cast<char32_t>(event.key());
    if (code > 0xFFFF || !isPrintable(code)) {
        return std::nullopt;
    }
    const QString character(QChar(static_cast<char16_t>(code)));
    const bool isShifted = event.modifiers().testFlag(Qt::ShiftModifier);
    return Text((isShifted ? character : character.toLower()).toStdString());
}

/// The native key is the X keysym, which depends on Shift but not on Ctrl.
std::optional<Text> charactersOfKeysym(const QKeyEvent& event) {
    const char32_t character = xkb_keysym_to_utf32(event.nativeVirtualKey());
    if (!isPrintable(character)) {
        return std::nullopt;
    }
    std::array<char, 8> utf8{};
    xkb_keysym_to_utf8(event.nativeVirtualKey(), utf8.data(), utf8.size());
    return Text(utf8.data());
}

bool isAscii(const std::optional<Text>& characters) {
    return characters && static_cast<unsigned char>(characters->view().front()) < 0x80;
}

std::optional<Text> charactersOf(const QKeyEvent& event) {
    if (event.nativeVirtualKey() == 0) {
        return charactersOfKey(event);
    }
    std::optional<Text> typed = charactersOfKeysym(event);
    constexpr auto shortcutModifiers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (typed && !isAscii(typed) && (event.modifiers() & shortcutModifiers) != 0) {
        // Qt names the key of a shortcut by its Latin letter if the keyboard also has a Latin layout.
        if (std::optional<Text> latin = charactersOfKey(event); isAscii(latin)) {
            return latin;
        }
    }
    return typed;
}

} // namespace

KeyEvent keyEventFrom(const QKeyEvent& event, const KeyCodeFromScanCode& keyCodeFromScanCode) {
    return {.type = event.type() == QEvent::KeyRelease ? KeyEventType::keyUp : KeyEventType::keyDown,
            .keyCode = keyCodeOf(event, keyCodeFromScanCode),
            .charactersIgnoringModifiers = charactersOf(event),
            .modifierFlags = flagsOf(event.modifiers())};
}

} // namespace tovrel
