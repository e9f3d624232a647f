#include <QApplication>
#include <QStyleHints>

#include <gtest/gtest.h>

#include "windows/ViewEngine.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", TOVREL_TEST_PLATFORM);
    tovrel::configureQtEnvironment();
    const QApplication application(argc, argv);
    QGuiApplication::styleHints()->setCursorFlashTime(0);
    return RUN_ALL_TESTS();
}
