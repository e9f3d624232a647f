#pragma once

#include <string>
#include <vector>

namespace tovrel {

/// Starts a program that goes on by itself: in a session of its own, with the environment of
/// StartEnvironment.h and with none of this program's blocked or handled signals; the system collects it when
/// it ends. The program is looked for in $PATH; the arguments begin with its name. False when it is not found
/// or no process could be made.
bool startDetached(std::vector<std::string> arguments);

} // namespace tovrel
