#include "app/resident/Resident.h"

#include <QApplication>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <unistd.h>

#include "app/DBusNames.h"
#include "app/DescriptorBuffer.h"
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

/// Drops what cannot be written: a program that serves the user goes on, whoever stops reading it.
class DroppingBuffer : public DescriptorBuffer {
  public:
    using DescriptorBuffer::DescriptorBuffer;

  protected:
    int sync() override {
        try {
            return DescriptorBuffer::sync();
        } catch (const OutputError&) {
            return 0;
        }
    }
};

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

    DroppingBuffer buffer(STDOUT_FILENO);
    std::ostream output(&buffer);
    const Console lastingConsole{console.input, output, console.error, console.style};
    ResidentProgram program(invocation, lastingConsole);
    if (!program.start()) {
        ResidentClient().show(); // another was quicker
        return 0;
    }
    endSignals.onSignal([] { QApplication::quit(); });
    return QApplication::exec();
}

} // namespace tovrel
