#include "GradientBar.h"

#include <QLinearGradient>
#include <QPainter>

namespace tovrel {

GradientBar::GradientBar(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(this, &GradientBar::changed, this, [this] { update(); });
}

void GradientBar::paint(QPainter* painter) {
    const QRectF bar = boundingRect();
    QLinearGradient gradient(bar.topLeft(), bar.bottomRight());
    gradient.setColorAt(0, from_);
    gradient.setColorAt(1, to_);
    painter->setPen(Qt::NoPen);
    painter->setBrush(gradient);
    painter->drawRoundedRect(bar, radius_, radius_);
}

} // namespace tovrel
