#include "qt/QtMainQueue.h"

#include <QMetaObject>
#include <QTimer>
#include <utility>

namespace tovrel {

void QtMainQueue::post(Task task) {
    QMetaObject::invokeMethod(&context_, std::move(task), Qt::QueuedConnection);
}

void QtMainQueue::postAfter(std::chrono::milliseconds delay, Task task) {
    if (delay.count() <= 0) {
        post(std::move(task));
        return;
    }
    // A less precise timer may fire up to 5 % early.
    QTimer::singleShot(delay, Qt::PreciseTimer, &context_, std::move(task));
}

} // namespace tovrel
