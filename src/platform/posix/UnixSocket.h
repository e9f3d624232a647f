#pragma once

#include <string>

#include "platform/posix/FileDescriptor.h"

namespace tovrel {

/// Connects to the first address of a list as D-Bus writes it
/// ("unix:path=/run/user/1000/bus;unix:abstract=…") that somebody listens at; does not wait. Returns no
/// descriptor when nobody listens, when the list is malformed, or when it has an address that is no socket of
/// this machine: addresses come from windows and from other programs, and "unixexec:" would run whatever it
/// names.
FileDescriptor connectedUnixSocket(const std::string& addresses);

} // namespace tovrel
