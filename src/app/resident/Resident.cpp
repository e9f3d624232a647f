#include "app/resident/Resident.h"

#include <QApplication>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <thread>
#include <unistd.h>

#include "app/desktop/OpenDesktop.h"
#include "app/resident/EndSignals.h"
#include "app/resident/ResidentProgram.h"
#include "app/resident/SeatLock.h"
#include "app/seat/DBusNames.h"
#include "app/seat/ResidentClient.h"
#include "app/seat/ResidentSeat.h"
#include "app/terminal/DescriptorBuffer.h"
#include "app/terminal/Failure.h"
#include "windows/ViewEngine.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

/// The time to wait for another resident program that is starting and does not listen yet, or is ending.
constexpr auto patienceWithAnother = 5s;
constexpr auto pauseBetweenAttempts = 10ms;

/// Takes the seat of this display; null when another process has it and has shown its palette.
std::unique_ptr<SeatLock> lockUnlessShown(const ResidentSeat& seat) {
    const auto deadline = std::chrono::steady_clock::now() + patienceWithAnother;
    for (;;) {
        auto lock = std::make_unique<SeatLock>(seat);
        if (!lock->isTakenByAnother()) {
            return lock;
        }
        const bool isLate = std::chrono::steady_clock::now() >= deadline;
        try {
            if (auto client = ResidentClient::ofSeat(seat)) {
                client->show();
                return nullptr;
            }
        } catch (const Failure&) {
            if (std::chrono::steady_clock::now() >= deadline) {
                throw;
            }
        }
        // The other process may have lost its socket.
        if (isLate && isShownOverSessionBus()) {
            return nullptr;
        }
        if (isLate) {
            throw Failure("the running tovrel does not answer");
        }
        std::this_thread::sleep_for(pauseBetweenAttempts); // No event tells when it listens or has ended.
    }
}

/// Drops output that cannot be written: the program must go on serving the user when nobody reads it.
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
    const std::shared_ptr<Desktop> desktop = openDesktop();
    if (!desktop) {
        throw Failure("there is no palette on this system yet; only recordings can be searched");
    }
    if (const auto problem = desktop->displayProblem()) {
        throw Failure(*problem + " to show the palette on");
    }
    const auto seat = ResidentSeat::ofEnvironment();
    const auto lock = seat ? lockUnlessShown(*seat) : nullptr;
    if ((seat && !lock) || isShownOverSessionBus()) {
        return 0;
    }
    EndSignals endSignals;
    configureQtEnvironment();
    // Qt would take arguments that it knows; ours have been parsed already.
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
    ResidentProgram program(invocation, lastingConsole, seat, *desktop);
    if (!program.start()) {
        return 0;
    }
    endSignals.onSignal([] { QApplication::quit(); });
    return QApplication::exec();
}

} // namespace tovrel
