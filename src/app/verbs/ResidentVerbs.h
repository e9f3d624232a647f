#pragma once

#include "app/terminal/Console.h"

/// The verbs that call the resident program. Each returns the exit status and throws Failure when the program
/// does not run or answer.
namespace tovrel::verbs {

int toggle();
int settings();
int quit();

/// Prints the state that the resident program reports, as lines for people or as a JSON object.
int status(bool asJson, const Console& console);

} // namespace tovrel::verbs
