#include "windows/ViewEngine.h"

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QIcon>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <memory>

#include "views/shared/AppIconImages.h"
#include "views/shared/SymbolImages.h"
#include "views/theme/NativeTheme.h"

// Registers the types of the views' module. The function is generated; the linker would leave it out without
// this call.
void qml_register_types_Tovrel_Views(); // NOLINT(readability-identifier-naming)

namespace tovrel {
namespace {

void useRoundFont() {
    for (const char* family : native_theme::fontFamilies) {
        if (QFontDatabase::hasFamily(QLatin1String(family))) {
            QFont font = QGuiApplication::font();
            font.setFamily(QLatin1String(family));
            QGuiApplication::setFont(font);
            return;
        }
    }
}

void useOpenGLIfAskedFor() {
    if (qEnvironmentVariable("TOVREL_RENDERER") != QLatin1String("opengl")) {
        return;
    }
    // Qt ends the process if it is told to use OpenGL where there is none.
    if (QOpenGLContext context; context.create()) {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    }
}

} // namespace

void configureQtEnvironment() {
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

ViewEngine::ViewEngine() {
    useOpenGLIfAskedFor();
    useRoundFont();
    qml_register_types_Tovrel_Views();
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/qt/qml/Tovrel/Views/SettingsAppIcon.svg")));
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    // The engine owns them.
    engine_.addImageProvider(QLatin1String(SymbolImages::scheme), std::make_unique<SymbolImages>().release());
    engine_.addImageProvider(QLatin1String(AppIconImages::scheme),
                             std::make_unique<AppIconImages>().release());
}

} // namespace tovrel
