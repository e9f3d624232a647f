#include "views/shared/SymbolImages.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace tovrel {

QImage SymbolImages::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    const QSize pixels = requestedSize.isValid() ? requestedSize : QSize(24, 24);
    QImage image = symbolImage(id.section(u'/', 0, 0), QColor(id.section(u'/', 1)), pixels);
    *size = image.size();
    return image;
}

QImage symbolImage(const QString& name, const QColor& colour, const QSize& pixels) {
    const QString file = QStringLiteral(":/qt/qml/Tovrel/Views/symbols/%1.svg").arg(name);
    if (!QFile::exists(file)) {
        return {};
    }
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(file);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), colour);
    painter.end();
    // A painted picture keeps the painter's working memory, which is many times its own; a copy does not.
    return image.copy();
}

} // namespace tovrel
