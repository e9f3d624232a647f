#include "windows/FocusLossWatch.h"

#include <chrono>
#include <utility>

namespace tovrel {
namespace {

using std::chrono_literals::operator""ms;

// Qt itself reports a loss 100 ms after it happened. No event tells when another program's grab ends.
constexpr auto recheckInterval = 50ms;
// A window that is being shown gets the focus within a few milliseconds, or some more on a busy machine. The
// watch may take its time, because activations of other applications are reported separately.
constexpr int missesOfALoss = 4;

} // namespace

FocusLossWatch::FocusLossWatch(std::function<bool()> hasFocus, std::function<void()> onLoss)
    : hasFocus_(std::move(hasFocus)), onLoss_(std::move(onLoss)) {
    recheck_.setInterval(recheckInterval);
    QObject::connect(&recheck_, &QTimer::timeout, &recheck_, [this] { check(); });
}

void FocusLossWatch::activeChanged(bool isActive) {
    recheck_.stop();
    if (!isActive) {
        misses_ = 0;
        recheck_.start();
        check();
    }
}

void FocusLossWatch::check() {
    misses_ = hasFocus_() ? 0 : misses_ + 1;
    if (misses_ == missesOfALoss) {
        recheck_.stop();
        onLoss_();
    }
}

} // namespace tovrel
