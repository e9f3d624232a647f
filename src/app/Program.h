#pragma once

#include <functional>

#include "app/terminal/Console.h"
#include "app/verbs/CommandLine.h"

namespace tovrel {

/// Becomes the resident program until it is told to quit; its exit status. May throw Failure.
using RunResident = std::function<int(const command_line::Invocation&, const Console&)>;

/// Runs the program as started with these arguments and returns its exit status: 0 on success, 1 on failure
/// (one line on standard error), 2 on wrong usage (likewise). Returns 1 without a line when the reader of
/// standard output closes the pipe early, because it has what it wanted.
int runProgram(int argc, const char* const* argv, const Console& console, const RunResident& runResident);

} // namespace tovrel
