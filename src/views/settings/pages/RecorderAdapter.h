#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <memory>
#include <vector>

#include "KeyboardShortcuts/RecorderCocoa.h"
#include "qt/QtKeyEvents.h"

namespace tovrel {

/// A shortcut recorder for a view to bind to.
class RecorderAdapter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The settings' window makes it.")
    Q_PROPERTY(QString text READ text NOTIFY textChanged FINAL)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY placeholderChanged FINAL)
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged FINAL)
    Q_PROPERTY(bool isRecording READ isRecording NOTIFY isRecordingChanged FINAL)

  public:
    RecorderAdapter(std::unique_ptr<RecorderCocoa> recorder, KeyCodeFromScanCode keyCodeFromScanCode,
                    QObject* parent = nullptr);

    /// The shortcut; empty when there is none.
    [[nodiscard]] QString text() const;
    [[nodiscard]] QString placeholder() const;
    /// Why the shortcut does not fire; empty while it does.
    [[nodiscard]] QString problem() const;
    [[nodiscard]] bool isRecording() const { return recorder_->isRecording().get(); }

    void startRecording() { recorder_->becomeFirstResponder(); }
    void endRecording() { recorder_->endRecording(); }
    /// Returns whether the key is used up. May ask the user, and then returns only after the answer.
    bool handleKeyDown(const QKeyEvent& event);
    /// Whether the user is being asked about a key, so that the recorder must stay.
    [[nodiscard]] bool isHandlingKey() const { return recorder_->isHandlingKey().get(); }
    /// Tries again to register a shortcut that was refused.
    void retry() { recorder_->retry(); }

    Q_INVOKABLE void clear() { recorder_->clear(); }

  Q_SIGNALS:
    void textChanged();
    void placeholderChanged();
    void problemChanged();
    void isRecordingChanged();
    /// Asks the field to take the keyboard focus (again) and to record.
    void focusRequested();
    /// Emitted when a key has been handled, including a question to the user.
    void keyHandled();

  private:
    std::unique_ptr<RecorderCocoa> recorder_;
    KeyCodeFromScanCode keyCodeFromScanCode_;
    std::vector<Subscription> subscriptions_;
};

} // namespace tovrel
