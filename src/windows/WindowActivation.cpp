#include "windows/WindowActivation.h"

#include <chrono>
#include <utility>

namespace tovrel {
namespace {

using std::chrono_literals::operator""ms;

/// Window managers that grant the focus at all do it within a few milliseconds.
constexpr auto activationPatience = 50ms;

} // namespace

WindowActivation::WindowActivation(QWindow& window, WindowSystem windowSystem, WindowStay stay)
    : window_(&window), windowSystem_(std::move(windowSystem)), stay_(stay) {
    activation_.setSingleShot(true);
    activation_.setInterval(activationPatience);
    // Once granted, the focus may have gone on to where the user wants it.
    QObject::connect(window_, &QWindow::activeChanged, &activation_, [this] {
        if (window_->isActive()) {
            activation_.stop();
        }
    });
    QObject::connect(&activation_, &QTimer::timeout, window_, [this] {
        if (window_->isVisible() && !window_->isActive()) {
            windowSystem_.activate(*window_);
        }
    });
}

void WindowActivation::show() {
    if (!window_->isVisible()) {
        restoreFocus_ = windowSystem_.rememberFocus();
    }
    window_->show();
    window_->raise();
}

void WindowActivation::takeFocus() {
    windowSystem_.takeFocus(*window_);
    activation_.start();
}

void WindowActivation::hide() {
    if (window_->isVisible()) {
        activation_.stop();
        if (windowSystem_.hasInputFocus(*window_) &&
            (stay_ == WindowStay::brief || !windowSystem_.isManaged())) {
            restoreFocus_();
        }
        window_->hide();
    }
}

} // namespace tovrel
