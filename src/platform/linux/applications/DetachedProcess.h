#pragma once

#include <string>
#include <vector>

namespace tovrel {

/// Starts a program that goes on by itself: in a session of its own, with the environment of
/// StartEnvironment.h and no signal blocked or handled on this program's account, and collected by the system
/// when it ends. It is looked for in $PATH; the arguments begin with its name. False when it is not there or
/// no process could be made.
bool startDetached(std::vector<std::string> arguments);

} // namespace tovrel
