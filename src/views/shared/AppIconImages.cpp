#include "views/shared/AppIconImages.h"

#include <QDir>
#include <QIcon>
#include <QImage>
#include <QPixmap>

namespace tovrel {
namespace {

QIcon iconNamed(const QString& name) {
    return QDir::isAbsolutePath(name) ? QIcon(name) : QIcon::fromTheme(name);
}

} // namespace

QImage AppIconImages::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    const QSize wanted = requestedSize.isValid() ? requestedSize : QSize(64, 64);
    const QIcon icon = iconNamed(QUrl::fromPercentEncoding(id.toUtf8()));
    // A ratio of 1: the size asked for is in pixels of the screen already.
    QImage image = icon.pixmap(wanted, 1.0).toImage();
    *size = image.size();
    return image;
}

QUrl appIconUrl(const QString& name) {
    if (name.isEmpty() || iconNamed(name).availableSizes().isEmpty()) {
        return {};
    }
    return QUrl(
        QStringLiteral("image://%1/%2")
            .arg(QLatin1String(AppIconImages::scheme), QString::fromUtf8(QUrl::toPercentEncoding(name))));
}

} // namespace tovrel
