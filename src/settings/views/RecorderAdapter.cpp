#include "RecorderAdapter.h"

#include <QMetaObject>
#include <utility>

#include "palette/views/QtText.h"

namespace tovrel {

RecorderAdapter::RecorderAdapter(std::unique_ptr<RecorderCocoa> recorder, KeyCodeFromEvdev keyCodeFromEvdev,
                                 QObject* parent)
    : QObject(parent), recorder_(std::move(recorder)), keyCodeFromEvdev_(std::move(keyCodeFromEvdev)) {
    subscriptions_.push_back(recorder_->stringValue().subscribe([this] { Q_EMIT textChanged(); }));
    subscriptions_.push_back(recorder_->placeholder().subscribe([this] { Q_EMIT placeholderChanged(); }));
    subscriptions_.push_back(recorder_->isRecording().subscribe([this] { Q_EMIT isRecordingChanged(); }));
    // The window gets the focus back from an alert only once this turn is over.
    subscriptions_.push_back(recorder_->focusRequest().subscribe(
        [this] { QMetaObject::invokeMethod(this, &RecorderAdapter::focusRequested, Qt::QueuedConnection); }));
}

QString RecorderAdapter::text() const {
    return qtString(recorder_->stringValue().get());
}

QString RecorderAdapter::placeholder() const {
    return qtString(recorder_->placeholder().get());
}

bool RecorderAdapter::handleKeyDown(const QKeyEvent& event) {
    if (isHandlingKey_) {
        return false;
    }
    isHandlingKey_ = true;
    const bool isUsed = recorder_->handleKeyDown(keyEventFrom(event, keyCodeFromEvdev_));
    isHandlingKey_ = false;
    QMetaObject::invokeMethod(this, &RecorderAdapter::keyHandled, Qt::QueuedConnection);
    return isUsed;
}

} // namespace tovrel
