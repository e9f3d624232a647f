#include "windows/QtStatusItem.h"

#include <QAction>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPalette>
#include <QPixmap>
#include <algorithm>
#include <utility>

#include "qt/QtText.h"
#include "views/shared/SymbolImages.h"
#include "views/theme/NativeTheme.h"

namespace tovrel {
namespace {

QIcon symbolIcon(const Text& name, const QColor& colour) {
    QIcon icon;
    // Trays and menus ask for these sizes, up to a scale of 2; other sizes are scaled from the next larger
    // one.
    for (const int size : {16, 18, 22, 24, 32, 44, 48, 64}) {
        if (const QImage image = symbolImage(qtString(name), colour, {size, size}); !image.isNull()) {
            icon.addPixmap(QPixmap::fromImage(image));
        }
    }
    return icon;
}

} // namespace

QtStatusItem::QtStatusItem(StatusItemDescription description, const WindowSystem& windowSystem,
                           const std::function<void(bool)>& onMenuTracking)
    : description_(std::move(description)), wait_(windowSystem, [this] { show(); }) {
    const QColor textColour = QGuiApplication::palette().color(QPalette::WindowText);
    for (const StatusMenuItem& item : description_.menu) {
        if (item.title.empty()) {
            menu_.addSeparator();
            continue;
        }
        QAction* action = menu_.addAction(symbolIcon(item.symbol, textColour), qtString(item.title));
        if (item.keyEquivalent) {
            action->setShortcut(QKeySequence(QStringLiteral("Ctrl+") + qtString(*item.keyEquivalent)));
        }
        QObject::connect(action, &QAction::triggered, &menu_, [run = item.action] {
            if (run) {
                run();
            }
        });
    }
    menu_.installEventFilter(this);
    QObject::connect(&menu_, &QMenu::aboutToShow, &menu_, [onMenuTracking] { onMenuTracking(true); });
    QObject::connect(&menu_, &QMenu::aboutToHide, &menu_, [onMenuTracking] { onMenuTracking(false); });
}

void QtStatusItem::setToolTip(const Text& toolTip) {
    description_.toolTip = toolTip;
    if (icon_) {
        icon_->setToolTip(qtString(toolTip));
    }
}

bool QtStatusItem::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        // A menu leaves shortcuts to its window, and this menu has none.
        const QKeySequence pressed(static_cast<QKeyEvent*>(event)->keyCombination());
        const auto actions = menu_.actions();
        const auto chosen = std::find_if(actions.begin(), actions.end(), [&](const QAction* action) {
            return action->shortcut() == pressed && !pressed.isEmpty();
        });
        if (chosen != actions.end()) {
            menu_.close();
            (*chosen)->trigger();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void QtStatusItem::show() {
    icon_ = std::make_unique<QSystemTrayIcon>(symbolIcon(description_.imageName, native_theme::statusItem));
    icon_->setToolTip(qtString(description_.toolTip));
    icon_->setContextMenu(&menu_);
    // A click opens the menu, as a click into a menu bar does.
    QObject::connect(icon_.get(), &QSystemTrayIcon::activated, &menu_, [this](auto reason) {
        if (reason == QSystemTrayIcon::Trigger) {
            menu_.popup(QCursor::pos());
        }
    });
    icon_->show();
}

} // namespace tovrel
