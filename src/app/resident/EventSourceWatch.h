#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>

#include "platform/posix/EventSource.h"

namespace tovrel {

/// Has the main loop dispatch a source's events: when its descriptor becomes readable, and before the loop
/// goes to sleep, since a question asked over the same connection may have brought events into memory.
class EventSourceWatch {
  public:
    /// The sources must outlive the watch. `before`, if given, is always dispatched first: what came from
    /// there earlier must not be taken for something later.
    explicit EventSourceWatch(EventSource& source, EventSource* before = nullptr);
    ~EventSourceWatch();
    EventSourceWatch(const EventSourceWatch&) = delete;
    EventSourceWatch& operator=(const EventSourceWatch&) = delete;

  private:
    void dispatch();

    EventSource* source_;
    EventSource* before_;
    std::unique_ptr<QSocketNotifier> notifier_;
    QMetaObject::Connection beforeSleep_;
};

} // namespace tovrel
