#include "platform/posix/SystemCallFailure.h"

#include <cerrno>
#include <system_error>

namespace tovrel {
namespace {

PreferencesObstacle obstacle(int number) {
    switch (number) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return PreferencesObstacle::noRoom;
    case EACCES:
    case EPERM:
    case EROFS:
        return PreferencesObstacle::notPermitted;
    default:
        return PreferencesObstacle::other;
    }
}

} // namespace

PreferencesFailure systemCallFailure(int number) {
    return {obstacle(number), std::generic_category().message(number)};
}

} // namespace tovrel
