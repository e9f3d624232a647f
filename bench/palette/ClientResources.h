#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "platform/x11/server/X11Connection.h"

namespace tovrel {

/// The number of resources of each type (windows, pixmaps, passive grabs, …) that the server holds for the
/// connections of a process (X-Resource extension). Empty when the server does not say.
std::map<std::string, std::uint32_t> clientResources(X11Connection& connection,
                                                     std::uint32_t processIdentifier);

} // namespace tovrel
