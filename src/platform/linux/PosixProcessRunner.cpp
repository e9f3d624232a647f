#include "platform/linux/PosixProcessRunner.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <spawn.h>
#include <string>
#include <unistd.h>

#include <sys/wait.h>

#include "platform/linux/SpawnAttributes.h"

namespace tovrel {

std::variant<std::int32_t, LaunchFailure> PosixProcessRunner::run(const CommandProcessRequest& request) {
    std::vector<std::string> texts{std::string(request.executablePath.utf8())};
    std::transform(request.arguments.begin(), request.arguments.end(), std::back_inserter(texts),
                   [](const Text& argument) { return std::string(argument.utf8()); });
    if (std::any_of(texts.begin(), texts.end(),
                    [](const std::string& text) { return text.find('\0') != std::string::npos; })) {
        return LaunchFailure{EINVAL};
    }
    std::vector<char*> words;
    std::transform(texts.begin(), texts.end(), std::back_inserter(words),
                   [](std::string& text) { return text.data(); });
    words.push_back(nullptr);

    const SpawnAttributes attributes;
    pid_t process = 0;
    if (const int error =
            posix_spawn(&process, words.front(), nullptr, attributes.get(), words.data(), environ);
        error != 0) {
        return LaunchFailure{error};
    }
    int status = 0;
    while (waitpid(process, &status, 0) < 0) {
        if (errno != EINTR) {
            return LaunchFailure{errno};
        }
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : WTERMSIG(status);
}

} // namespace tovrel
