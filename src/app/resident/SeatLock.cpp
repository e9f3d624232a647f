#include "app/resident/SeatLock.h"

#include <cerrno>
#include <fcntl.h>

#include <sys/file.h>

namespace tovrel {
namespace {

constexpr mode_t onlyForTheUser = 0600;

} // namespace

SeatLock::SeatLock(const ResidentSeat& seat) {
    const std::filesystem::path directory = seat.lock.parent_path();
    std::error_code error;
    if (std::filesystem::create_directory(directory, error)) {
        std::filesystem::permissions(directory, std::filesystem::perms::owner_all, error);
    }
    descriptor_ =
        FileDescriptor(open(seat.lock.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, onlyForTheUser));
    isTakenByAnother_ =
        descriptor_.isOpen() && flock(descriptor_.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

} // namespace tovrel
