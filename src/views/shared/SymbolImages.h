#pragma once

#include <QColor>
#include <QImage>
#include <QQuickImageProvider>
#include <QSize>
#include <QString>

namespace tovrel {

/// The program's own symbols for views: "image://symbol/NAME/#rrggbb", rendered in that colour and in the
/// shown size, so that they are sharp at every scale.
class SymbolImages : public QQuickImageProvider {
  public:
    static constexpr const char* scheme = "symbol";

    SymbolImages() : QQuickImageProvider(QQuickImageProvider::Image) {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

/// The symbol in one colour, `pixels` large; null when there is no symbol of that name.
QImage symbolImage(const QString& name, const QColor& colour, const QSize& pixels);

} // namespace tovrel
