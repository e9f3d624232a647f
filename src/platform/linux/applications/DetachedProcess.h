#pragma once

#include <string>
#include <vector>

namespace tovrel {

/// Starts an independent program: in a session of its own, with the environment of StartEnvironment.h and
/// with none of this program's blocked or handled signals; the system collects it when it ends. The first
/// argument is the program's name, which is looked up in $PATH. Returns false when the program is not found
/// or no process could be made.
bool startDetached(std::vector<std::string> arguments);

} // namespace tovrel
