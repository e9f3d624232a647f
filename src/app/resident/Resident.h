#pragma once

#include "app/terminal/Console.h"
#include "app/verbs/CommandLine.h"

namespace tovrel {

/// Becomes the resident program and returns the exit status once it is told to quit. When one runs already,
/// that one opens its palette and this one ends at once. Throws Failure when there is no display to show
/// anything on, or the program was built without a user interface.
int runResident(const command_line::Invocation& invocation, const Console& console);

} // namespace tovrel
