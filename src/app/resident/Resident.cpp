#include "app/resident/Resident.h"

#include <QApplication>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>

#include "app/DBusNames.h"
#include "app/Failure.h"
#include "app/ResidentClient.h"
#include "app/resident/EndSignals.h"
#include "app/resident/ResidentProgram.h"
#include "platform/linux/X11Connection.h"
#include "platform/qt/ViewEngine.h"

namespace tovrel {
namespace {

/// Whether one runs already; it then shows its palette.
bool isShownByAnother() {
    try {
        ResidentClient().show();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

} // namespace

int runResident(const command_line::Invocation& invocation, const Console& console) {
    if (!X11Connection().isOpen()) {
        throw Failure("there is no X display to show the palette on");
    }
    if (isShownByAnother()) {
        return 0;
    }
    EndSignals endSignals;
    configureQtEnvironment();
    // Qt takes what it knows of the arguments; ours have been read already.
    int argc = 1;
    std::string name = "tovrel";
    char* argv[] = {name.data(), nullptr};
    const QApplication application(argc, argv);
    QApplication::setApplicationName("tovrel");
    QApplication::setApplicationDisplayName("Tovrel");
    QApplication::setApplicationVersion(TOVREL_VERSION);
    QApplication::setDesktopFileName(dbus_names::service);
    QApplication::setQuitOnLastWindowClosed(false);

    ResidentProgram program(invocation, console);
    if (!program.start()) {
        ResidentClient().show(); // another was quicker
        return 0;
    }
    endSignals.onSignal([] { QApplication::quit(); });
    return QApplication::exec();
}

} // namespace tovrel
