#include "app/resident/EventSourceWatch.h"

#include <QAbstractEventDispatcher>

namespace tovrel {

EventSourceWatch::EventSourceWatch(const WatchedEvents& events) : events_(events) {
    const int descriptor = events_.source->fileDescriptor();
    if (descriptor < 0) {
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { dispatch(); });
    beforeSleep_ = QObject::connect(QAbstractEventDispatcher::instance(),
                                    &QAbstractEventDispatcher::aboutToBlock, [this] { dispatch(); });
}

EventSourceWatch::~EventSourceWatch() {
    QObject::disconnect(beforeSleep_);
}

void EventSourceWatch::dispatch() {
    if (events_.earlier != nullptr) {
        events_.earlier->dispatch();
    }
    events_.source->dispatch();
    if (events_.source->fileDescriptor() < 0) {
        notifier_->setEnabled(false);
    }
}

} // namespace tovrel
