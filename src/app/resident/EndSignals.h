#pragma once

#include <QSocketNotifier>
#include <csignal>
#include <functional>
#include <memory>

#include "platform/posix/FileDescriptor.h"

namespace tovrel {

/// Turns SIGINT, SIGTERM and SIGHUP into a call on the main thread. Must be made before any other thread
/// starts, because that thread would get the signals. The destructor restores the signals' former effect.
class EndSignals {
  public:
    EndSignals();
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

    /// Sets the handler, which the main loop calls for each such signal, including signals before this call.
    void onSignal(std::function<void()> handler);

  private:
    sigset_t maskBefore_{};
    FileDescriptor descriptor_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace tovrel
