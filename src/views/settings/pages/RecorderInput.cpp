#include "views/settings/pages/RecorderInput.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQuickWindow>
#include <utility>

namespace tovrel {

RecorderInput::RecorderInput(QQuickItem* parent) : QQuickItem(parent) {
    setActiveFocusOnTab(true);
}

RecorderInput::~RecorderInput() {
    if (watched_) {
        watched_->removeEventFilter(this);
    }
}

void RecorderInput::setRecorder(RecorderAdapter* recorder) {
    if (recorder_ == recorder) {
        return;
    }
    if (recorder_) {
        disconnect(recorder_, nullptr, this, nullptr);
    }
    recorder_ = recorder;
    if (recorder_) {
        connect(recorder_, &RecorderAdapter::focusRequested, this, &RecorderInput::record);
    }
    Q_EMIT recorderChanged();
}

void RecorderInput::record() {
    forceActiveFocus(Qt::OtherFocusReason);
    if (!recorder_ || window() == nullptr) {
        return;
    }
    if (window()->isActive()) {
        recorder_->startRecording();
    } else {
        // Recording disables all shortcuts, so it must not begin while the window does not get the keys.
        recordsWhenActive_ = true;
        window()->requestActivate();
    }
}

bool RecorderInput::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease && recorder_ && recorder_->isRecording()) {
        const auto* release = static_cast<QMouseEvent*>(event);
        const bool isCounted = release->button() == Qt::LeftButton || release->button() == Qt::RightButton;
        if (isCounted && !contains(mapFromScene(release->scenePosition()))) {
            recorder_->endRecording();
        }
    }
    return QQuickItem::eventFilter(watched, event);
}

void RecorderInput::keyPressEvent(QKeyEvent* event) {
    event->ignore();
    if (!recorder_) {
        return;
    }
    if (recorder_->isRecording()) {
        event->setAccepted(recorder_->handleKeyDown(*event));
        return;
    }
    const bool isStart =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isStart && event->modifiers() == Qt::NoModifier) {
        recorder_->startRecording();
        event->accept();
    }
}

void RecorderInput::focusInEvent(QFocusEvent* event) {
    const bool isWanted = std::exchange(recordsWhenActive_, false);
    if (recorder_ && (isWanted || event->reason() != Qt::ActiveWindowFocusReason)) {
        recorder_->startRecording();
    }
}

void RecorderInput::focusOutEvent(QFocusEvent* /*event*/) {
    if (recorder_) {
        recorder_->endRecording();
    }
}

void RecorderInput::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemSceneChange) {
        if (watched_) {
            watched_->removeEventFilter(this);
        }
        watched_ = data.window;
        if (watched_) {
            watched_->installEventFilter(this);
        }
    }
    QQuickItem::itemChange(change, data);
}

} // namespace tovrel
