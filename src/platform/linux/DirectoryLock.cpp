#include "platform/linux/DirectoryLock.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <stdexcept>
#include <thread>

#include <sys/file.h>

namespace tovrel {

DirectoryLock::DirectoryLock(const std::filesystem::path& directory, Kind kind)
    : descriptor_(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (!descriptor_.isOpen()) {
        return;
    }
    using std::chrono::steady_clock;
    const auto deadline = steady_clock::now() + std::chrono::seconds(5);
    const int operation = (kind == Kind::shared ? LOCK_SH : LOCK_EX) | LOCK_NB;
    // Polled, because flock has no time limit of its own.
    while (flock(descriptor_.get(), operation) != 0) {
        if (errno == EWOULDBLOCK && steady_clock::now() >= deadline) {
            throw std::runtime_error("another program keeps its directory locked");
        }
        if (errno != EWOULDBLOCK && errno != EINTR) {
            return;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

} // namespace tovrel
