#include "KeyboardShortcuts/RecorderCocoa.h"

#include <algorithm>
#include <array>
#include <utility>

#include "KeyboardShortcuts/HotKeyErrorText.h"
#include "model/VirtualKeyCodes.h"

namespace tovrel {
namespace {

/// Caps Lock and the number pad's flag never count.
constexpr ModifierFlags anyModifier = modifier_flags::control | modifier_flags::option |
                                      modifier_flags::command | modifier_flags::shift |
                                      modifier_flags::function | modifier_flags::help;
/// A shortcut needs one of these, or it would take a key that users type.
constexpr ModifierFlags shortcutModifiers =
    modifier_flags::control | modifier_flags::option | modifier_flags::command | modifier_flags::help;

bool isModifierKey(std::uint32_t keyCode) {
    return keyCode >= key_codes::firstModifier && keyCode <= key_codes::lastModifier;
}

bool isFunctionKey(std::uint32_t keyCode) {
    return std::find(key_codes::functionKeys.begin(), key_codes::functionKeys.end(), keyCode) !=
           key_codes::functionKeys.end();
}

} // namespace

RecorderCocoa::RecorderCocoa(RecorderSurroundings surroundings, KeyboardShortcuts::Name name)
    : surroundings_(std::move(surroundings)), name_(std::move(name)),
      placeholder_(surroundings_.localized("KeyboardShortcuts", "record_shortcut")),
      shortcutChange_(
          surroundings_.shortcuts.onShortcutByNameDidChange([this](const KeyboardShortcuts::Name& changed) {
              if (changed.rawValue == name_.rawValue) {
                  showShortcut();
              }
          })),
      availabilityChange_(surroundings_.shortcuts.onAvailabilityDidChange([this] { showShortcut(); })) {
    showShortcut();
}

RecorderCocoa::~RecorderCocoa() {
    if (isRecording_.get()) {
        surroundings_.hotKeyCenter.giveKeyboardBack(false);
        surroundings_.shortcuts.setRecorderActive(false);
    }
}

void RecorderCocoa::becomeFirstResponder() {
    if (isRecording_.get()) {
        return;
    }
    placeholder_.set(surroundings_.localized("KeyboardShortcuts", "press_shortcut"));
    surroundings_.shortcuts.setRecorderActive(true);
    isRecording_.set(true);
    // This is refused while another program has the keyboard; then the keys of the recorder's window must do.
    static_cast<void>(surroundings_.hotKeyCenter.takeKeyboard(
        [this](const KeyEvent& event) {
            if (event.type == KeyEventType::keyDown) {
                handleKeyDown(event);
            }
        },
        [this] { endRecording(); }));
}

void RecorderCocoa::endRecording(bool passesKeyOn) {
    if (!isRecording_.get()) {
        return;
    }
    surroundings_.hotKeyCenter.giveKeyboardBack(passesKeyOn);
    placeholder_.set(surroundings_.localized("KeyboardShortcuts", "record_shortcut"));
    surroundings_.shortcuts.setRecorderActive(false);
    isRecording_.set(false);
}

bool RecorderCocoa::handleKeyDown(const KeyEvent& event) {
    if (!isRecording_.get() || isHandlingKey_.get() || isModifierKey(event.keyCode)) {
        return false;
    }
    isHandlingKey_.set(true);
    const bool isUsed = handleKey(event);
    isHandlingKey_.set(false);
    return isUsed;
}

bool RecorderCocoa::handleKey(const KeyEvent& event) {
    const ModifierFlags modifiers = event.modifierFlags & anyModifier;
    if (modifiers == 0) {
        switch (event.keyCode) {
        case key_codes::tab:
            endRecording(true);
            return false;
        case key_codes::escape:
            endRecording();
            return true;
        case key_codes::deleteKey:
        case key_codes::forwardDelete:
            clear();
            return true;
        default:
            break;
        }
    }
    const bool hasModifier = (modifiers & shortcutModifiers) != 0;
    if (event.keyCode == key_codes::unknown || (!hasModifier && !isFunctionKey(event.keyCode))) {
        surroundings_.userInterface.beep();
        return true;
    }
    record({event.keyCode, carbonModifiers(modifiers)});
    return true;
}

void RecorderCocoa::record(const Shortcut& shortcut) {
    if (const auto title = surroundings_.menuItemTitle(shortcut)) {
        refuse(filled(surroundings_.localized("KeyboardShortcuts", "keyboard_shortcut_used_by_menu_item"),
                      *title));
        return;
    }
    // F12 without modifiers is accepted although desktops claim it.
    const bool isF12 = shortcut == Shortcut{key_codes::f12, 0};
    if (!isF12 && surroundings_.hotKeyCenter.isSystemShortcut(shortcut) && !isForced()) {
        return;
    }
    stringValue_.set(surroundings_.textOf(shortcut));
    surroundings_.shortcuts.setShortcut(shortcut, name_);
    endRecording();
}

bool RecorderCocoa::isForced() {
    endRecording();
    const LocalizedString& localized = surroundings_.localized;
    const AlertAnswer answer = surroundings_.userInterface.runAlert(
        {.messageText = localized("KeyboardShortcuts", "keyboard_shortcut_used_by_system"),
         .informativeText = localized("KeyboardShortcuts", "keyboard_shortcuts_can_be_changed"),
         .firstButton = localized("KeyboardShortcuts", "ok"),
         .secondButton = localized("KeyboardShortcuts", "force_use_shortcut")});
    const bool isForced = answer == AlertAnswer::secondButton;
    if (!isForced) {
        focusRequest_.set(true);
    }
    return isForced;
}

void RecorderCocoa::refuse(const Text& message) {
    endRecording();
    static_cast<void>(surroundings_.userInterface.runAlert(
        {.messageText = message,
         .informativeText = {},
         .firstButton = surroundings_.localized("KeyboardShortcuts", "ok"),
         .secondButton = {}}));
    focusRequest_.set(true);
}

void RecorderCocoa::clear() {
    stringValue_.set({});
    surroundings_.shortcuts.setShortcut(std::nullopt, name_);
    focusRequest_.set(true);
}

void RecorderCocoa::showShortcut() {
    const std::optional<Shortcut> shortcut = surroundings_.shortcuts.getShortcut(name_);
    const std::optional<Text> trigger = surroundings_.shortcuts.desktopTrigger(name_);
    const Text ours = shortcut ? surroundings_.textOf(*shortcut) : Text();
    stringValue_.set(trigger.value_or(ours));
    const auto refusal = surroundings_.shortcuts.refusal(name_);
    problem_.set(refusal ? hotKeyErrorText(*refusal, surroundings_.localized) : Text());
}

} // namespace tovrel
