#include "platform/preferences/DirectoryLock.h"

#include <cerrno>
#include <fcntl.h>

#include <sys/file.h>

namespace tovrel {

DirectoryLock::DirectoryLock(const std::filesystem::path& directory, Kind kind, LockPatience& patience)
    : descriptor_(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (!descriptor_.isOpen()) {
        return;
    }
    const int operation = (kind == Kind::shared ? LOCK_SH : LOCK_EX) | LOCK_NB;
    // The lock is polled, because flock has no time limit.
    while (flock(descriptor_.get(), operation) != 0) {
        if (errno == EWOULDBLOCK) {
            if (!patience.waitAMoment()) {
                throw Held("another program keeps its directory locked");
            }
        } else if (errno != EINTR) {
            return;
        }
    }
}

} // namespace tovrel
