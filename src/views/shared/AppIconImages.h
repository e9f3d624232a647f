#pragma once

#include <QQuickImageProvider>
#include <QString>
#include <QUrl>

namespace tovrel {

/// Application icons for views, from the icon theme or from image files, rendered in the shown size.
class AppIconImages : public QQuickImageProvider {
  public:
    static constexpr const char* scheme = "appicon";

    AppIconImages() : QQuickImageProvider(QQuickImageProvider::Image) {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

/// The address under which a view gets the icon: a name in the icon theme or the absolute path of an image
/// file. Empty when there is no such icon.
QUrl appIconUrl(const QString& name);

} // namespace tovrel
