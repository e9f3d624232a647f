#include "app/resident/EndSignals.h"

#include <unistd.h>
#include <utility>

#include <sys/signalfd.h>

namespace tovrel {

EndSignals::EndSignals() {
    sigset_t signals{};
    sigemptyset(&signals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        sigaddset(&signals, signal);
    }
    pthread_sigmask(SIG_BLOCK, &signals, &maskBefore_);
    descriptor_ = FileDescriptor(signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK));
}

EndSignals::~EndSignals() {
    notifier_.reset();
    pthread_sigmask(SIG_SETMASK, &maskBefore_, nullptr);
}

void EndSignals::onSignal(std::function<void()> handler) {
    notifier_ = std::make_unique<QSocketNotifier>(descriptor_.get(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated,
                     [descriptor = descriptor_.get(), handler = std::move(handler)] {
                         signalfd_siginfo information{};
                         if (read(descriptor, &information, sizeof information) == sizeof information) {
                             handler();
                         }
                     });
}

} // namespace tovrel
