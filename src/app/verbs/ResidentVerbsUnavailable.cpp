#include "app/terminal/Failure.h"
#include "app/verbs/ResidentVerbs.h"

namespace tovrel::verbs {
namespace {

[[noreturn]] void refuse() {
    throw Failure("there is no palette on this system yet");
}

} // namespace

int toggle() {
    refuse();
}

int settings() {
    refuse();
}

int quit() {
    refuse();
}

int status(bool /*asJson*/, const Console& /*console*/) {
    refuse();
}

} // namespace tovrel::verbs
