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

/// What a recorder needs from outside. Everything referred to outlives it.
struct RecorderSurroundings {
    KeyboardShortcuts& shortcuts;
    HotKeyCenter& hotKeyCenter;
    UserInterface& userInterface;
    LocalizedString localized;
    /// Returns the text of a shortcut for the field.
    std::function<Text(const Shortcut&)> textOf;
    /// Returns the title of the item in this program's own menus that has the combination; absent when none
    /// has.
    std::function<std::optional<Text>(const Shortcut&)> menuItemTitle;
};

/// The logic of the field in which the user sets a named shortcut. It shows the present shortcut; while it
/// records, it accepts the next valid combination. During a recording no global shortcut fires, and the
/// recorder takes the whole keyboard if it can, so that even other programs' hot keys arrive here.
///
/// The control on top of it passes on focus and events, and shows the observable values.
class RecorderCocoa {
  public:
    RecorderCocoa(RecorderSurroundings surroundings, KeyboardShortcuts::Name name);
    /// Ends a recording.
    ~RecorderCocoa();
    RecorderCocoa(const RecorderCocoa&) = delete;
    RecorderCocoa& operator=(const RecorderCocoa&) = delete;

    /// The name's shortcut, the desktop's own words instead, or empty; the clear button is shown while it is
    /// not empty.
    [[nodiscard]] const Observable<Text>& stringValue() const { return stringValue_; }
    /// The text of an empty field.
    [[nodiscard]] const Observable<Text>& placeholder() const { return placeholder_; }
    [[nodiscard]] const Observable<bool>& isRecording() const { return isRecording_; }
    /// A sentence that says why the shown shortcut does not fire; empty while it does.
    [[nodiscard]] const Observable<Text>& problem() const { return problem_; }
    /// Whether a key is being handled, possibly with a question to the user; the recorder must not be
    /// destroyed meanwhile.
    [[nodiscard]] const Observable<bool>& isHandlingKey() const { return isHandlingKey_; }
    /// Notifies when the control must take the keyboard focus (again); the value means nothing.
    [[nodiscard]] const Observable<bool>& focusRequest() const { return focusRequest_; }

    /// Starts recording; called when the control has taken the keyboard focus in a window.
    void becomeFirstResponder();
    /// Ends recording; called when the control or its window has lost the keyboard focus, or a mouse button
    /// came up outside the control.
    void endRecording() { endRecording(false); }

    /// Handles a key-down while recording if the keyboard could not be taken. Returns whether the key is used
    /// up; other keys go on to the window. May ask the user, and then returns only after the answer.
    bool handleKeyDown(const KeyEvent& event);

    /// Removes the shortcut and asks for the focus, so that recording starts; called by the clear button.
    void clear();

    /// Tries refused shortcuts again.
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
