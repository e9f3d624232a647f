#include "app/resident/EventSourceWatch.h"

#include <QAbstractEventDispatcher>

namespace tovrel {

EventSourceWatch::EventSourceWatch(EventSource& source, EventSource* before)
    : source_(&source), before_(before) {
    if (source.fileDescriptor() < 0) {
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(source.fileDescriptor(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { dispatch(); });
    beforeSleep_ = QObject::connect(QAbstractEventDispatcher::instance(),
                                    &QAbstractEventDispatcher::aboutToBlock, [this] { dispatch(); });
}

EventSourceWatch::~EventSourceWatch() {
    QObject::disconnect(beforeSleep_);
}

void EventSourceWatch::dispatch() {
    if (before_ != nullptr) {
        before_->dispatch();
    }
    source_->dispatch();
    if (source_->fileDescriptor() < 0) {
        notifier_->setEnabled(false);
    }
}

} // namespace tovrel
