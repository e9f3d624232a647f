#pragma once

namespace tovrel {

/// Runs the program as started with these arguments and returns its exit status: 0 on success, 1 on failure
/// (one line on standard error), 2 on wrong usage.
int runCommandLine(int argc, char** argv);

} // namespace tovrel
