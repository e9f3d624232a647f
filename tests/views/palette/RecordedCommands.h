#pragma once

#include <string>
#include <vector>

#include "model/Command.h"
#include "support/TextServices.h"

namespace tovrel {

/// The command list of a recorded application, such as "firefox", as the palette would show it.
std::vector<Command> recordedCommands(const std::string& application, const TextServices& textServices);

} // namespace tovrel
