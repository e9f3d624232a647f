#include "app/Failure.h"
#include "app/MenuSource.h"

namespace tovrel {

MenuSource liveMenuSource(const command_line::MenuSourceOptions& /*options*/) {
    throw Failure("this build reads recordings only; give one with --recording");
}

} // namespace tovrel
