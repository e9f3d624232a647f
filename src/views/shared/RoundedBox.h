#pragma once

#include <QColor>
#include <QQmlEngine>
#include <QQuickPaintedItem>

namespace tovrel {

/// A box with round corners, a gradient and a border, all smooth at every scale: a Rectangle drawn without a
/// GPU has ragged corners when it has a gradient, and gaps in its border at fractional scales.
class RoundedBox : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal radius MEMBER radius_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor from MEMBER from_ NOTIFY changed FINAL)
    /// The colour in the middle of the gradient; half-way between the others when not set.
    Q_PROPERTY(QColor via MEMBER via_ NOTIFY changed FINAL)
    /// The colour at the end of the gradient; when not set, the whole box has the colour `from`.
    Q_PROPERTY(QColor to MEMBER to_ NOTIFY changed FINAL)
    /// Whether the gradient runs from the upper left to the lower right corner instead of from top to bottom.
    Q_PROPERTY(bool isDiagonal MEMBER isDiagonal_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor borderColour MEMBER borderColour_ NOTIFY changed FINAL)
    Q_PROPERTY(qreal borderWidth MEMBER borderWidth_ NOTIFY changed FINAL)

  public:
    explicit RoundedBox(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void changed();

  private:
    qreal radius_ = 0;
    QColor from_ = Qt::transparent;
    QColor via_;
    QColor to_;
    bool isDiagonal_ = false;
    QColor borderColour_ = Qt::transparent;
    qreal borderWidth_ = 0;
};

} // namespace tovrel
