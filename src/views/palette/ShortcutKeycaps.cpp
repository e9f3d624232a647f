#include "views/palette/ShortcutKeycaps.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <cmath>

namespace tovrel {
namespace {

constexpr int capHeight = 23;
/// The item's size is a multiple of this, which gives whole pixels at every quarter scale. The caps are at
/// its right edge.
constexpr int grid = 4;
constexpr int itemHeight = 24;
constexpr int minimumWidth = 23;
constexpr int longTextInset = 6;
constexpr int gap = 4;
constexpr qreal strokeWidth = 1.5;

bool hasSeveralCharacters(const QString& text) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    return finder.toNextBoundary() < text.size() && !text.isEmpty();
}

} // namespace

ShortcutKeycaps::ShortcutKeycaps(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    setImplicitHeight(itemHeight);
    connect(this, &ShortcutKeycaps::coloursChanged, this, [this] { update(); });
}

void ShortcutKeycaps::setTexts(const QStringList& texts) {
    if (texts != texts_) {
        texts_ = texts;
        measure();
        update();
        Q_EMIT textsChanged();
    }
}

void ShortcutKeycaps::setFont(const QFont& font) {
    if (font != font_) {
        font_ = font;
        measure();
        update();
        Q_EMIT fontChanged();
    }
}

void ShortcutKeycaps::paint(QPainter* painter) {
    const QFontMetricsF metrics(font_);
    painter->setFont(font_);
    // Centres capital letters, whatever room the font keeps above and below them.
    const qreal scale = painter->device()->devicePixelRatio();
    const qreal baseline = std::round((capHeight + metrics.capHeight()) / 2 * scale) / scale;
    qreal left = width() - contentWidth_;
    for (qsizetype i = 0; i < texts_.size(); ++i) {
        const qreal width = widths_[static_cast<std::size_t>(i)];
        const QRectF outline(left + strokeWidth / 2, strokeWidth / 2, width - strokeWidth,
                             capHeight - strokeWidth);
        painter->setPen(QPen(borderColour_, strokeWidth));
        painter->drawRoundedRect(outline, outline.height() / 2, outline.height() / 2);
        painter->setPen(ink_);
        painter->drawText(QPointF(left + (width - metrics.horizontalAdvance(texts_[i])) / 2, baseline),
                          texts_[i]);
        left += width + gap;
    }
}

void ShortcutKeycaps::measure() {
    const QFontMetricsF metrics(font_);
    widths_.clear();
    int total = 0;
    for (const QString& text : std::as_const(texts_)) {
        const int inset = hasSeveralCharacters(text) ? longTextInset : 0;
        const int textWidth = static_cast<int>(std::ceil(metrics.horizontalAdvance(text)));
        widths_.push_back(std::max(minimumWidth, textWidth + 2 * inset));
        total += widths_.back() + gap;
    }
    contentWidth_ = std::max(total - gap, 0);
    const int cells = (contentWidth_ + grid - 1) / grid;
    setImplicitWidth(cells * grid);
}

} // namespace tovrel
