#pragma once

#include <string>

#include "platform/posix/FileDescriptor.h"

namespace tovrel {

/// Connects to the first address of a list as D-Bus writes it
/// ("unix:path=/run/user/1000/bus;unix:abstract=…") that somebody listens at; does not wait. No descriptor
/// when nobody does, when the list is malformed, and when an address in it is not of a socket of this
/// machine: addresses come from windows and from other programs, and "unixexec:" would run whatever it names.
FileDescriptor connectedUnixSocket(const std::string& addresses);

} // namespace tovrel
