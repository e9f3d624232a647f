#include "platform/linux/applications/DetachedProcess.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <sstream>
#include <unistd.h>
#include <utility>

#include <sys/wait.h>

#include "platform/linux/applications/ExecTexts.h"
#include "platform/linux/applications/StartEnvironment.h"

namespace tovrel {
namespace {

/// Returns an empty path when $PATH has no such program.
std::string findInPath(const std::string& program) {
    const char* path = std::getenv("PATH"); // NOLINT(concurrency-mt-unsafe)
    std::istringstream folders(path == nullptr ? "/usr/bin:/bin" : path);
    for (std::string folder; std::getline(folders, folder, ':');) {
        std::string file = (folder.empty() ? "." : folder) + "/" + program;
        if (access(file.c_str(), X_OK) == 0) {
            return file;
        }
    }
    return "";
}

/// Runs in the forked process, with only the calls that are safe there when the program has threads. The new
/// program is a grandchild whose parent ends at once, so that nobody has to wait for it.
[[noreturn]] void becomeDetached(const char* file, char* const* words, char* const* environment) {
    setsid();
    struct sigaction usual {};
    usual.sa_handler = SIG_DFL;
    for (int number = 1; number < NSIG; ++number) {
        sigaction(number, &usual, nullptr); // fails for the few that cannot be changed
    }
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    const pid_t process = fork();
    if (process == 0) {
        execve(file, words, environment);
        _exit(127);
    }
    _exit(process < 0 ? 1 : 0);
}

} // namespace

bool startDetached(std::vector<std::string> arguments) {
    const std::string file = arguments.empty() ? "" : findInPath(arguments.front());
    if (file.empty()) {
        return false;
    }
    const ExecTexts words(std::move(arguments));
    const ExecTexts environment = startEnvironment();
    const pid_t process = fork();
    if (process == 0) {
        becomeDetached(file.c_str(), words.get(), environment.get());
    }
    int status = -1;
    while (process > 0 && waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    return process > 0 && status == 0;
}

} // namespace tovrel
