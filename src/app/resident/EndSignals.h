#pragma once

#include <QSocketNotifier>
#include <csignal>
#include <functional>
#include <memory>

#include "platform/posix/FileDescriptor.h"

namespace tovrel {

/// Turns SIGINT, SIGTERM and SIGHUP into a call on the main thread. Made before any other thread starts,
/// which would get the signals otherwise; when it ends, the signals do again what they did before.
class EndSignals {
  public:
    EndSignals();
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

    /// `handler` is called by the main loop for each such signal, those before this call included.
    void onSignal(std::function<void()> handler);

  private:
    sigset_t maskBefore_{};
    FileDescriptor descriptor_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace tovrel
