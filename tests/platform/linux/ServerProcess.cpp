#include "platform/linux/ServerProcess.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <iterator>
#include <spawn.h>
#include <unistd.h>

#include <sys/wait.h>

namespace tovrel {

ServerProcess::ServerProcess(std::vector<std::string> arguments) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        return;
    }
    for (std::string& argument : arguments) {
        if (const auto place = argument.find("{fd}"); place != std::string::npos) {
            argument.replace(place, 4, std::to_string(ends[1]));
        }
    }
    std::vector<char*> words;
    std::transform(arguments.begin(), arguments.end(), std::back_inserter(words),
                   [](std::string& argument) { return argument.data(); });
    words.push_back(nullptr);
    if (posix_spawnp(&process_, words[0], nullptr, nullptr, words.data(), environ) != 0) {
        process_ = -1;
    }
    close(ends[1]);
    char byte = '\0';
    while (read(ends[0], &byte, 1) == 1 && byte != '\n') {
        announced_ += byte;
    }
    close(ends[0]);
}

ServerProcess::~ServerProcess() {
    if (process_ > 0) {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }
}

} // namespace tovrel
