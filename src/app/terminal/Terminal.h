#pragma once

#include "app/terminal/Console.h"

namespace tovrel {

/// The style for an open file descriptor: with colour when it is a terminal that can show it and the
/// environment does not have NO_COLOR (no-color.org), and within the terminal's width.
OutputStyle outputStyleOf(int fileDescriptor);

} // namespace tovrel
