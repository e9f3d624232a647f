#include "windows/WindowActivation.h"

#include <chrono>

#include "windows/QtWindowSystem.h"

namespace tovrel {
namespace {

using std::chrono_literals::operator""ms;

/// Window managers that grant the focus do so within a few milliseconds.
constexpr auto activationPatience = 50ms;

} // namespace

WindowActivation::WindowActivation(QWindow& window, WindowSystem& windowSystem, WindowStay stay)
    : window_(&window), windowSystem_(&windowSystem), stay_(stay) {
    activation_.setSingleShot(true);
    activation_.setInterval(activationPatience);
    // Once granted, the focus must not be asked for again: the user may have moved it since.
    QObject::connect(window_, &QWindow::activeChanged, &activation_, [this] {
        if (window_->isActive()) {
            activation_.stop();
        }
    });
    QObject::connect(&activation_, &QTimer::timeout, window_, [this] {
        if (window_->isVisible() && !window_->isActive()) {
            windowSystem_->activate(ownWindow(*window_));
        }
    });
}

void WindowActivation::show() {
    if (!window_->isVisible()) {
        restoreFocus_ = windowSystem_->rememberFocus();
    }
    window_->show();
    window_->raise();
}

void WindowActivation::takeFocus() {
    window_->requestActivate();
    windowSystem_->giveFocus(ownWindow(*window_));
    activation_.start();
}

void WindowActivation::hide() {
    if (window_->isVisible()) {
        activation_.stop();
        if (windowSystem_->hasInputFocus(ownWindow(*window_)) &&
            (stay_ == WindowStay::brief || !windowSystem_->isManaged())) {
            restoreFocus_();
        }
        window_->hide();
    }
}

} // namespace tovrel
