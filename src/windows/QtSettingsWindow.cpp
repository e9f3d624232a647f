#include "windows/QtSettingsWindow.h"

#include <QKeyEvent>
#include <QQuickItem>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "support/Fatal.h"
#include "views/settings/SettingsViewAdapter.h"
#include "views/settings/pages/RecorderAdapter.h"
#include "windows/MainScreen.h"

namespace tovrel {
namespace {

/// The widest frame that window managers draw. The actual frame is known only once the window is shown.
constexpr QMargins roomForFrame(8, 40, 8, 8);

/// The content's place when the window with its frame is centred in the visible part of the screen. The
/// content is smaller than wanted where there is less room.
QRect contentRect(QSize wanted, const QRect& visible) {
    const QRect room = visible.marginsRemoved(roomForFrame);
    QRect content(QPoint(), wanted.boundedTo(room.size()));
    content.moveCenter(visible.center());
    content.moveTop(std::clamp(content.top(), room.top(), room.top() + room.height() - content.height()));
    content.moveLeft(std::clamp(content.left(), room.left(), room.left() + room.width() - content.width()));
    return content;
}

} // namespace

QtSettingsWindow::QtSettingsWindow(Surroundings surroundings)
    : surroundings_(std::move(surroundings)), view_(&surroundings_.engine.qml(), nullptr),
      activation_(view_, surroundings_.windowSystem, WindowStay::lasting) {
    view_.setFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint);
    view_.setTitle(QStringLiteral("Tovrel"));
    view_.setResizeMode(QQuickView::SizeRootObjectToView);
    view_.installEventFilter(this);
}

QtSettingsWindow::~QtSettingsWindow() {
    // The view must be destroyed before the objects that it is bound to.
    view_.removeEventFilter(this);
    view_.setSource({});
}

void QtSettingsWindow::setContent(std::unique_ptr<SettingsViewState> state) {
    if (content_.recorder && content_.recorder->isHandlingKey()) {
        waiting_ = std::move(state);
        return;
    }
    install(std::move(state));
}

void QtSettingsWindow::install(std::unique_ptr<SettingsViewState> state) {
    Content content{.state = std::move(state),
                    .recorder = std::make_unique<RecorderAdapter>(surroundings_.makeRecorder(),
                                                                  surroundings_.keyCodeFromScanCode),
                    .adapter = nullptr};
    content.adapter = std::make_unique<SettingsViewAdapter>(
        *content.state, *content.recorder,
        SettingsViewAdapter::Surroundings{.workspace = surroundings_.workspace,
                                          .textServices = surroundings_.textServices,
                                          .openURL = surroundings_.openURL});
    QObject::connect(content.recorder.get(), &RecorderAdapter::keyHandled, this, [this] {
        if (waiting_) {
            install(std::move(waiting_));
        }
    });
    view_.setInitialProperties({{QStringLiteral("settings"), QVariant::fromValue(content.adapter.get())}});
    view_.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Tovrel/Views/SettingsView.qml")));
    if (view_.rootObject() == nullptr) {
        fatal("a view of the user interface cannot be loaded");
    }
    view_.rootObject()->forceActiveFocus();
    // The old view is gone, so the old content may go too.
    std::swap(content_, content);
}

void QtSettingsWindow::showAndMakeKey() {
    if (!view_.isVisible()) {
        place();
    }
    if (view_.windowStates().testFlag(Qt::WindowMinimized)) {
        view_.setWindowStates(Qt::WindowNoState);
    }
    activation_.show();
    activation_.takeFocus();
}

void QtSettingsWindow::place() {
    const QScreen* screen = mainScreen(surroundings_.windowSystem);
    const QQuickItem& root = *view_.rootObject();
    const QSize wanted = QSizeF(root.implicitWidth(), root.implicitHeight()).toSize();
    const QRect content =
        screen != nullptr ? contentRect(wanted, screen->availableGeometry()) : QRect(QPoint(), wanted);
    if (position_ && view_.size() == content.size()) {
        view_.setFramePosition(*position_);
        return;
    }
    view_.setMinimumSize(content.size());
    view_.setMaximumSize(content.size());
    view_.resize(content.size());
    view_.setPosition(content.topLeft());
}

void QtSettingsWindow::hide() {
    if (view_.isVisible()) {
        position_ = view_.framePosition();
        content_.recorder->endRecording();
        activation_.hide();
    }
}

bool QtSettingsWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Close) {
        // A close event would destroy the window.
        hide();
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::KeyPress && handleKeyPress(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

bool QtSettingsWindow::handleKeyPress(const QKeyEvent& event) {
    if (content_.recorder->isRecording()) {
        return false;
    }
    const KeyEvent key = keyEventFrom(event, surroundings_.keyCodeFromScanCode);
    if (key.modifierFlags != modifier_flags::command || !key.charactersIgnoringModifiers) {
        return false;
    }
    const auto* const item = std::find_if(window_menu::items.begin(), window_menu::items.end(),
                                          [&](const window_menu::Item& each) {
                                              return *key.charactersIgnoringModifiers == each.keyEquivalent;
                                          });
    if (item == window_menu::items.end()) {
        return false;
    }
    const window_menu::Action action = item->action;
    if (action == window_menu::Action::closeWindow) {
        hide();
    }
    surroundings_.onMenuAction(action);
    return true;
}

} // namespace tovrel
