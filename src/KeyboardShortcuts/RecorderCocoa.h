#pragma once

#include <functional>
#include <optional>

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "model/KeyEvent.h"
#include "model/Shortcut.h"
#include "platform/HotKeyCenter.h"
#include "platform/UserInterface.h"
#include "support/LocalizedString.h"
#include "support/Observable.h"
#include "support/Text.h"

namespace tovrel {

/// What a recorder needs of its surroundings. Everything referred to outlives it.
struct RecorderSurroundings {
    KeyboardShortcuts& shortcuts;
    HotKeyCenter& hotKeyCenter;
    UserInterface& userInterface;
    LocalizedString localized;
    /// How a shortcut is shown in the field.
    std::function<Text(const Shortcut&)> textOf;
    /// The title of the item of this program's own menus that has the combination; absent when none has.
    std::function<std::optional<Text>(const Shortcut&)> menuItemTitle;
};

/// The logic of the field in which the user sets a named shortcut: it shows the present one, and while it
/// records it takes the next combination that can be one. While it records, no global shortcut fires, and the
/// keyboard is its own where it can be had: keys that another program has as hot keys arrive here as well.
///
/// The control over it hands on the focus and the events, and shows the observable values.
class RecorderCocoa {
  public:
    RecorderCocoa(RecorderSurroundings surroundings, KeyboardShortcuts::Name name);
    /// Ends a recording.
    ~RecorderCocoa();
    RecorderCocoa(const RecorderCocoa&) = delete;
    RecorderCocoa& operator=(const RecorderCocoa&) = delete;

    /// The name's shortcut, or what the desktop has instead, or empty; the clear button is shown while it is
    /// not.
    [[nodiscard]] const Observable<Text>& stringValue() const { return stringValue_; }
    /// What an empty field says.
    [[nodiscard]] const Observable<Text>& placeholder() const { return placeholder_; }
    [[nodiscard]] const Observable<bool>& isRecording() const { return isRecording_; }
    /// Why the shown shortcut does not fire, in a sentence; empty while it does.
    [[nodiscard]] const Observable<Text>& problem() const { return problem_; }
    /// A key is being handled, perhaps by asking the user: the recorder must stay until that is over.
    [[nodiscard]] const Observable<bool>& isHandlingKey() const { return isHandlingKey_; }
    /// Notified, with no value of its own, when the control is to take the keyboard focus (again).
    [[nodiscard]] const Observable<bool>& focusRequest() const { return focusRequest_; }

    /// The control has taken the keyboard focus in a window: recording starts.
    void becomeFirstResponder();
    /// The control or its window has lost the keyboard focus.
    void endRecording() { endRecording(false); }

    /// A key-down while recording, where the keyboard could not be had. True when it is used up; others go on
    /// to the window. May ask the user, and then returns only after the answer.
    bool handleKeyDown(const KeyEvent& event);
    /// A mouse button came up outside of the control; the event goes on.
    void handleMouseUpOutside() { endRecording(); }

    /// The clear button: removes the shortcut and asks for the focus, so that recording starts.
    void clear();

    /// Has what was refused tried once more.
    void retry() { surroundings_.shortcuts.retryRefused(); }

  private:
    void endRecording(bool passesKeyOn);
    bool handleKey(const KeyEvent& event);
    void record(const Shortcut& shortcut);
    [[nodiscard]] bool isForced();
    void refuse(const Text& message);
    void showShortcut();

    RecorderSurroundings surroundings_;
    KeyboardShortcuts::Name name_;
    Observable<Text> stringValue_;
    Observable<Text> placeholder_;
    Observable<Text> problem_;
    Observable<bool> isRecording_{false};
    Observable<bool> isHandlingKey_{false};
    Observable<bool> focusRequest_{false};
    Subscription shortcutChange_;
    Subscription availabilityChange_;
};

} // namespace tovrel
