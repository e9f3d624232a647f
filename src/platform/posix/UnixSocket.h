#pragma once

#include <string>

#include "platform/posix/FileDescriptor.h"

namespace tovrel {

/// Connects to the first address in a D-Bus list of addresses
/// ("unix:path=/run/user/1000/bus;unix:abstract=…") at which somebody listens; does not wait. Returns no
/// descriptor when nobody listens, when the list is malformed, or when it has an address that is not a socket
/// of this machine: addresses come from windows and from other programs, and "unixexec:" would run any
/// program that it names.
FileDescriptor connectedUnixSocket(const std::string& addresses);

} // namespace tovrel
