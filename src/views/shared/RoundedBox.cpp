#include "views/shared/RoundedBox.h"

#include <QLinearGradient>
#include <QPainter>

namespace tovrel {

RoundedBox::RoundedBox(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(this, &RoundedBox::changed, this, [this] { update(); });
}

void RoundedBox::paint(QPainter* painter) {
    const QRectF box = boundingRect();
    QLinearGradient gradient(box.topLeft(), isDiagonal_ ? box.bottomRight() : box.bottomLeft());
    gradient.setColorAt(0, from_);
    if (via_.isValid()) {
        gradient.setColorAt(0.5, via_);
    }
    gradient.setColorAt(1, to_.isValid() ? to_ : from_);
    painter->setPen(Qt::NoPen);
    painter->setBrush(gradient);
    painter->drawRoundedRect(box, radius_, radius_);
    if (borderWidth_ > 0) {
        const qreal inset = borderWidth_ / 2;
        painter->setPen(QPen(borderColour_, borderWidth_));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(box.adjusted(inset, inset, -inset, -inset), radius_ - inset,
                                 radius_ - inset);
    }
}

} // namespace tovrel
