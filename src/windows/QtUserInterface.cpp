#include "windows/QtUserInterface.h"

#include <QApplication>
#include <QEventLoop>
#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "qt/QtText.h"
#include "views/shared/AlertQuestion.h"
#include "windows/FloatingWindow.h"
#include "windows/MainScreen.h"
#include "windows/QtStatusItem.h"
#include "windows/QtWindowSystem.h"

namespace tovrel {
namespace {

bool hasFocusedWindow(const WindowSystem& windowSystem) {
    const auto windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.begin(), windows.end(), [&](const QWindow* window) {
        return window->isVisible() && windowSystem.hasInputFocus(ownWindow(*window));
    });
}

bool isOrdinaryWindow(const QWindow& window) {
    return window.isVisible() && window.type() != Qt::Popup && window.type() != Qt::ToolTip;
}

/// The window that has the focus, else a window that is shown; null without one.
QWindow* windowInUse() {
    if (QWindow* focused = QGuiApplication::focusWindow(); focused != nullptr && isOrdinaryWindow(*focused)) {
        return focused;
    }
    const auto windows = QGuiApplication::topLevelWindows();
    const auto shown = std::find_if(windows.begin(), windows.end(),
                                    [](const QWindow* window) { return isOrdinaryWindow(*window); });
    return shown == windows.end() ? nullptr : *shown;
}

/// The place at the middle of the owner, or of the screen without an owner, that is wholly on the screen.
QPoint centred(QSize size, const QWindow* owner, const QRect& screen) {
    QRect frame(QPoint(), size);
    frame.moveCenter(owner == nullptr ? screen.center() : owner->frameGeometry().center());
    frame.moveRight(std::min(frame.right(), screen.right()));
    frame.moveBottom(std::min(frame.bottom(), screen.bottom()));
    frame.moveLeft(std::max(frame.left(), screen.left()));
    frame.moveTop(std::max(frame.top(), screen.top()));
    return frame.topLeft();
}

} // namespace

QtUserInterface::QtUserInterface(ViewEngine& engine, WindowSystem& windowSystem)
    : engine_(&engine), windowSystem_(&windowSystem),
      focusLoss_([this] { return hasFocusedWindow(*windowSystem_); }, [this] { resignActive_.notify(); }) {
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
                     [this](auto state) { focusLoss_.activeChanged(state == Qt::ApplicationActive); });
}

void QtUserInterface::activate() {
    // An earlier loss must not close the windows that come next.
    focusLoss_.stop();
    const auto windows = QGuiApplication::topLevelWindows();
    for (QWindow* window : windows) {
        if (isOrdinaryWindow(*window) && window != alert_) {
            window->raise();
            // If a window took the focus before the question does, keys would go to that window and be lost.
            if (alert_ == nullptr) {
                window->requestActivate();
            }
        }
    }
    if (alert_ != nullptr) {
        alert_->raise();
        alert_->requestActivate();
    }
}

Subscription QtUserInterface::onResignActive(std::function<void()> observer) {
    return resignActive_.subscribe(std::move(observer));
}

std::optional<Screen> QtUserInterface::mainScreen() {
    const QScreen* screen = tovrel::mainScreen(*windowSystem_);
    if (screen == nullptr) {
        return std::nullopt;
    }
    const QSize visible = screen->availableGeometry().size();
    return Screen{.identifier = textFrom(screen->name()),
                  .visibleSize = {.width = static_cast<double>(visible.width()),
                                  .height = static_cast<double>(visible.height())}};
}

AlertAnswer QtUserInterface::runAlert(const Alert& alert) {
    if (alert_ != nullptr) {
        return AlertAnswer::none;
    }
    AlertQuestion question;
    question.messageText = qtString(alert.messageText);
    question.informativeText = qtString(alert.informativeText);
    question.firstButton = qtString(alert.firstButton);
    question.secondButton = qtString(alert.secondButton);
    FloatingWindow window(*engine_, *windowSystem_,
                          {.view = QStringLiteral("AlertView"),
                           .properties = {{QStringLiteral("question"), QVariant::fromValue(&question)}},
                           .title = QStringLiteral("Tovrel"),
                           .type = Qt::Dialog});
    QWindow* owner = windowInUse();
    window.view().setTransientParent(owner);
    window.view().setModality(Qt::ApplicationModal);
    if (const QScreen* screen = owner == nullptr ? tovrel::mainScreen(*windowSystem_) : owner->screen()) {
        window.view().setPosition(centred(window.view().size(), owner, screen->availableGeometry()));
    }
    const QScopedValueRollback isAsking(alert_, &static_cast<QWindow&>(window.view()));
    QEventLoop loop;
    AlertAnswer answer = AlertAnswer::none;
    QObject::connect(&question, &AlertQuestion::answered, &loop, [&](bool isFirst) {
        answer = isFirst ? AlertAnswer::firstButton : AlertAnswer::secondButton;
        loop.quit();
    });
    QObject::connect(&question, &AlertQuestion::dismissed, &loop, [&] { loop.quit(); });
    // The window manager may close the window.
    QObject::connect(&window.view(), &QWindow::visibleChanged, &loop, [&](bool isVisible) {
        if (!isVisible) {
            loop.quit();
        }
    });
    window.show();
    window.takeFocus();
    loop.exec();
    window.hide();
    return answer;
}

std::unique_ptr<StatusItem> QtUserInterface::makeStatusItem(StatusItemDescription description) {
    return std::make_unique<QtStatusItem>(
        std::move(description), *windowSystem_,
        [tracking = menuTracking_](bool isOpen) { tracking->notify(isOpen); });
}

Subscription QtUserInterface::onMenuTracking(std::function<void(bool)> observer) {
    return menuTracking_->subscribe(std::move(observer));
}

void QtUserInterface::closeMenu() {
    if (QWidget* menu = QApplication::activePopupWidget()) {
        menu->close();
    }
}

void QtUserInterface::beep() {
    QApplication::beep();
}

void QtUserInterface::terminate() {
    QCoreApplication::exit(0);
}

} // namespace tovrel
