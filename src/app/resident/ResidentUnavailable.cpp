#include "app/resident/Resident.h"
#include "app/terminal/Failure.h"

namespace tovrel {

int runResident(const command_line::Invocation& /*invocation*/, const Console& /*console*/) {
    throw Failure("this tovrel was built without its user interface; only the verbs work");
}

} // namespace tovrel
