#include <csignal>
#include <fcntl.h>
#include <iostream>
#include <unistd.h>

#include "app/Program.h"
#include "app/resident/Resident.h"
#include "app/terminal/DescriptorBuffer.h"
#include "app/terminal/Terminal.h"

namespace {

/// Occupies standard descriptors that were closed when the program started. The next file opened, a database
/// or the display's socket, would get such a descriptor, and then the lines meant for a reader. An occupied
/// descriptor cannot be used: writing to standard output fails as it did before.
void keepStandardDescriptorsTaken() {
    int descriptor = 0;
    do {
        descriptor = open("/dev/null", O_PATH | O_CLOEXEC);
    } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    if (descriptor >= 0) {
        close(descriptor);
    }
}

} // namespace

int main(int argc, char** argv) {
    keepStandardDescriptorsTaken();
    // A write fails instead when the reader of standard output goes away, or when a file may not grow any
    // further.
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
    // The parent process may have ignored it, and then the kernel keeps no child's exit status.
    static_cast<void>(std::signal(SIGCHLD, SIG_DFL));
    tovrel::DescriptorBuffer buffer(STDOUT_FILENO);
    std::ostream output(&buffer);
    output.exceptions(std::ios::badbit);
    return tovrel::runProgram(argc, argv, {std::cin, output, std::cerr, tovrel::outputStyleOf(STDOUT_FILENO)},
                              tovrel::runResident);
}
