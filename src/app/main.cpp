#include <csignal>
#include <iostream>
#include <unistd.h>

#include "app/DescriptorBuffer.h"
#include "app/Program.h"
#include "app/Terminal.h"
#include "app/resident/Resident.h"

int main(int argc, char** argv) {
    // A reader of standard output that goes away shows as a failed write instead.
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    // Who started this may have ignored it, and then the kernel keeps no process's exit status.
    static_cast<void>(std::signal(SIGCHLD, SIG_DFL));
    tovrel::DescriptorBuffer buffer(STDOUT_FILENO);
    std::ostream output(&buffer);
    output.exceptions(std::ios::badbit);
    return tovrel::runProgram(argc, argv, {std::cin, output, std::cerr, tovrel::outputStyleOf(STDOUT_FILENO)},
                              tovrel::runResident);
}
