#pragma once

#include "app/Console.h"

namespace tovrel {

/// Runs the program as started with these arguments and returns its exit status: 0 on success, 1 on failure
/// (one line on standard error), 2 on wrong usage (likewise). A reader that closes the pipe of standard
/// output early gives 1 without a line: it has what it wanted.
int runProgram(int argc, const char* const* argv, const Console& console);

} // namespace tovrel
