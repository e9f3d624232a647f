#pragma once

#include <QColor>
#include <QQmlEngine>
#include <QQuickPaintedItem>

namespace tovrel {

/// A rounded bar filled with a gradient from its upper left to its lower right corner, with smooth corners,
/// which those of a Rectangle with a gradient are not when drawn without a GPU.
class GradientBar : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor from MEMBER from_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor to MEMBER to_ NOTIFY changed FINAL)
    Q_PROPERTY(qreal radius MEMBER radius_ NOTIFY changed FINAL)

  public:
    explicit GradientBar(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void changed();

  private:
    QColor from_;
    QColor to_;
    qreal radius_ = 0;
};

} // namespace tovrel
