#include "windows/FloatingWindow.h"

#include <QPainterPath>
#include <QQuickItem>
#include <QRegion>
#include <utility>

#include "support/Fatal.h"
#include "windows/QtWindowSystem.h"

namespace tovrel {
namespace {

QRegion roundedRegion(QSize size, qreal cornerRadius) {
    QPainterPath path;
    // With the radius of the view the mask would cut into its border, which is smoothed over two pixels.
    const qreal radius = cornerRadius - 1.5;
    path.addRoundedRect(QRectF(QPointF(0, 0), QSizeF(size)), radius, radius);
    return QRegion(path.toFillPolygon().toPolygon());
}

} // namespace

FloatingWindow::FloatingWindow(ViewEngine& engine, WindowSystem& windowSystem, const Description& description)
    : windowSystem_(&windowSystem), view_(&engine.qml(), nullptr),
      activation_(view_, windowSystem, WindowStay::brief) {
    view_.setFlags(description.type | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    view_.setTitle(description.title);
    view_.setColor(Qt::transparent);
    view_.setResizeMode(QQuickView::SizeRootObjectToView);
    view_.setInitialProperties(description.properties);
    view_.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Tovrel/Views/%1.qml").arg(description.view)));
    const QQuickItem* root = view_.rootObject();
    if (root == nullptr) {
        fatal("a view of the user interface cannot be loaded");
    }
    const QSize size(static_cast<int>(root->implicitWidth()), static_cast<int>(root->implicitHeight()));
    view_.resize(size);
    view_.setMinimumSize(size);
    view_.setMaximumSize(size);
    QObject::connect(root, SIGNAL(moveWanted()), this, SLOT(beginMove()));
    view_.installEventFilter(this);
    view_.create();
}

bool FloatingWindow::hasInputFocus() const {
    return windowSystem_->hasInputFocus(ownWindow(view_));
}

void FloatingWindow::show() {
    if (!view_.isVisible()) {
        shape();
    }
    activation_.show();
}

bool FloatingWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease && std::exchange(isMoveAskedFor_, false)) {
        windowSystem_->endMove(ownWindow(view_));
    }
    return QObject::eventFilter(watched, event);
}

void FloatingWindow::beginMove() {
    // The user may have released the button by now, and a window manager would wait for the release.
    isMoveAskedFor_ = windowSystem_->isFirstButtonDown() && view_.startSystemMove();
}

void FloatingWindow::shape() {
    const bool isComposited = windowSystem_->isComposited();
    const QQuickItem& root = *view_.rootObject();
    // Without a compositor transparent pixels are black, so the mask cuts the corners off, and the background
    // has the colour of the border.
    view_.setColor(isComposited ? QColor(Qt::transparent) : root.property("edge").value<QColor>());
    view_.setMask(isComposited ? QRegion()
                               : roundedRegion(view_.size(), root.property("cornerRadius").toReal()));
}

} // namespace tovrel
