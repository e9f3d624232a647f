#include "platform/qt/QtUserInterface.h"

#include <QApplication>
#include <QEventLoop>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "palette/views/AlertQuestion.h"
#include "palette/views/QtText.h"
#include "platform/qt/FloatingWindow.h"
#include "platform/qt/MainScreen.h"
#include "platform/qt/QtStatusItem.h"
#include "platform/qt/ScreenCoordinates.h"

namespace tovrel {
namespace {

bool hasFocusedWindow(const WindowSystem& windowSystem) {
    const auto windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.begin(), windows.end(), [&](const QWindow* window) {
        return window->isVisible() && windowSystem.hasInputFocus(*window);
    });
}

} // namespace

QtUserInterface::QtUserInterface(ViewEngine& engine, WindowSystem windowSystem)
    : engine_(&engine), windowSystem_(std::move(windowSystem)),
      focusLoss_([this] { return hasFocusedWindow(windowSystem_); }, [this] { resignActive_.notify(); }) {
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
                     [this](auto state) { focusLoss_.activeChanged(state == Qt::ApplicationActive); });
}

void QtUserInterface::activate() {
    // A loss from before must not close what is shown next.
    focusLoss_.stop();
    const auto windows = QGuiApplication::topLevelWindows();
    for (QWindow* window : windows) {
        if (window->isVisible() && window->type() != Qt::Popup && window->type() != Qt::ToolTip) {
            window->raise();
            window->requestActivate();
        }
    }
}

Subscription QtUserInterface::onResignActive(std::function<void()> observer) {
    return resignActive_.subscribe(std::move(observer));
}

std::optional<Rect> QtUserInterface::mainScreenVisibleFrame() {
    const QScreen* screen = mainScreen(windowSystem_);
    const QScreen* primary = QGuiApplication::primaryScreen();
    if (screen == nullptr || primary == nullptr) {
        return std::nullopt;
    }
    return upwards(screen->availableGeometry(), *primary);
}

AlertAnswer QtUserInterface::runAlert(const Alert& alert) {
    AlertQuestion question;
    question.messageText = qtString(alert.messageText);
    question.informativeText = qtString(alert.informativeText);
    question.firstButton = qtString(alert.firstButton);
    question.secondButton = qtString(alert.secondButton);
    FloatingWindow window(*engine_, windowSystem_,
                          {.view = QStringLiteral("AlertView"),
                           .properties = {{QStringLiteral("question"), QVariant::fromValue(&question)}},
                           .title = QStringLiteral("Tovrel"),
                           .type = Qt::Dialog});
    if (const QScreen* screen = mainScreen(windowSystem_)) {
        QRect frame = window.view().geometry();
        frame.moveCenter(screen->availableGeometry().center());
        window.view().setPosition(frame.topLeft());
    }
    QEventLoop loop;
    AlertAnswer answer = AlertAnswer::none;
    QObject::connect(&question, &AlertQuestion::answered, &loop, [&](bool isFirst) {
        answer = isFirst ? AlertAnswer::firstButton : AlertAnswer::secondButton;
        loop.quit();
    });
    QObject::connect(&question, &AlertQuestion::dismissed, &loop, [&] { loop.quit(); });
    // Closed by the window manager.
    QObject::connect(&window.view(), &QWindow::visibleChanged, &loop, [&](bool isVisible) {
        if (!isVisible) {
            loop.quit();
        }
    });
    window.show();
    loop.exec();
    window.hide();
    return answer;
}

std::unique_ptr<StatusItem> QtUserInterface::makeStatusItem(StatusItemDescription description) {
    return std::make_unique<QtStatusItem>(
        std::move(description), [tracking = menuTracking_](bool isOpen) { tracking->notify(isOpen); });
}

Subscription QtUserInterface::onMenuTracking(std::function<void(bool)> observer) {
    return menuTracking_->subscribe(std::move(observer));
}

void QtUserInterface::beep() {
    QApplication::beep();
}

void QtUserInterface::terminate() {
    QCoreApplication::exit(0);
}

} // namespace tovrel
