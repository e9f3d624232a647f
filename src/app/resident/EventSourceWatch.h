#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>

#include "app/desktop/Desktop.h"

namespace tovrel {

/// Has the main loop dispatch a source's events when its descriptor becomes readable. Also dispatches before
/// the loop goes to sleep, because a request over the same connection may have brought events into memory.
class EventSourceWatch {
  public:
    /// The sources must outlive the watch.
    explicit EventSourceWatch(const WatchedEvents& events);
    ~EventSourceWatch();
    EventSourceWatch(const EventSourceWatch&) = delete;
    EventSourceWatch& operator=(const EventSourceWatch&) = delete;

  private:
    void dispatch();

    WatchedEvents events_;
    std::unique_ptr<QSocketNotifier> notifier_;
    QMetaObject::Connection beforeSleep_;
};

} // namespace tovrel
