#include "PictureProgram.h"

#include <QApplication>
#include <QProcess>
#include <QStyleHints>
#include <iostream>

#include "windows/ViewEngine.h"

namespace tovrel {
namespace {

/// Qt reads this variable when the application object is made.
constexpr const char* scaleVariable = "QT_SCALE_FACTOR";

} // namespace

int runPictureProgram(int argc, char** argv, const std::function<void(const QDir&)>& draw) {
    if (argc != 2) {
        std::cerr << "usage: " << argv[0] << " FOLDER\n";
        return 2;
    }
    if (!qEnvironmentVariableIsSet(scaleVariable)) {
        for (const char* scale : {"1", "1.25", "2"}) {
            qputenv(scaleVariable, scale);
            if (QProcess::execute(QString::fromLocal8Bit(argv[0]), {QString::fromLocal8Bit(argv[1])}) != 0) {
                return 1;
            }
        }
        return 0;
    }
    qputenv("QT_QPA_PLATFORM", TOVREL_TEST_PLATFORM);
    configureQtEnvironment();
    const QApplication application(argc, argv);
    QGuiApplication::styleHints()->setCursorFlashTime(0);
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    if (!folder.mkpath(QStringLiteral("."))) {
        std::cerr << argv[0] << ": cannot make the folder " << argv[1] << '\n';
        return 1;
    }
    draw(folder);
    return 0;
}

} // namespace tovrel
