#pragma once

#include <QObject>

#include "platform/MainQueue.h"

namespace tovrel {

/// The main queue on Qt's event loop. Tasks that are still waiting when it is destroyed do not run.
class QtMainQueue final : public MainQueue {
  public:
    /// May be called from any thread.
    void post(Task task) override;
    void postAfter(std::chrono::milliseconds delay, Task task) override;

  private:
    QObject context_;
};

} // namespace tovrel
