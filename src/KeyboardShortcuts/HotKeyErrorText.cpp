#include "KeyboardShortcuts/HotKeyErrorText.h"

#include "support/Fatal.h"

namespace tovrel {

Text hotKeyErrorText(HotKeyError error, const LocalizedString& localized) {
    switch (error) {
    case HotKeyError::takenByAnother:
        return localized("KeyboardShortcuts", "Another program uses this shortcut.");
    case HotKeyError::noHotKeys:
        return localized("KeyboardShortcuts", "This desktop has no global shortcuts.");
    case HotKeyError::noSuchKey:
        return localized("KeyboardShortcuts", "The keyboard lacks the key of this shortcut.");
    case HotKeyError::noSuchModifier:
        return localized("KeyboardShortcuts", "The keyboard lacks a modifier key of this shortcut.");
    case HotKeyError::alreadyRegistered:
        return localized("KeyboardShortcuts", "Tovrel itself uses this shortcut.");
    case HotKeyError::refused:
        return localized("KeyboardShortcuts", "The desktop refuses this shortcut.");
    }
    noSuchValue("HotKeyError");
}

} // namespace tovrel
