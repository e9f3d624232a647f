#include "views/settings/pages/RecorderAdapter.h"

#include <QMetaObject>
#include <utility>

#include "qt/QtText.h"

namespace tovrel {

RecorderAdapter::RecorderAdapter(std::unique_ptr<RecorderCocoa> recorder,
                                 KeyCodeFromScanCode keyCodeFromScanCode, QObject* parent)
    : QObject(parent), recorder_(std::move(recorder)), keyCodeFromScanCode_(std::move(keyCodeFromScanCode)) {
    subscriptions_.push_back(recorder_->stringValue().subscribe([this] { Q_EMIT textChanged(); }));
    subscriptions_.push_back(recorder_->placeholder().subscribe([this] { Q_EMIT placeholderChanged(); }));
    subscriptions_.push_back(recorder_->problem().subscribe([this] { Q_EMIT problemChanged(); }));
    subscriptions_.push_back(recorder_->isRecording().subscribe([this] { Q_EMIT isRecordingChanged(); }));
    // The window gets the focus back from an alert only after this turn of the main loop.
    subscriptions_.push_back(recorder_->focusRequest().subscribe(
        [this] { QMetaObject::invokeMethod(this, &RecorderAdapter::focusRequested, Qt::QueuedConnection); }));
    subscriptions_.push_back(recorder_->isHandlingKey().subscribe([this] {
        if (!isHandlingKey()) {
            QMetaObject::invokeMethod(this, &RecorderAdapter::keyHandled, Qt::QueuedConnection);
        }
    }));
}

QString RecorderAdapter::text() const {
    return qtString(recorder_->stringValue().get());
}

QString RecorderAdapter::placeholder() const {
    return qtString(recorder_->placeholder().get());
}

QString RecorderAdapter::problem() const {
    return qtString(recorder_->problem().get());
}

bool RecorderAdapter::handleKeyDown(const QKeyEvent& event) {
    return recorder_->handleKeyDown(keyEventFrom(event, keyCodeFromScanCode_));
}

} // namespace tovrel
