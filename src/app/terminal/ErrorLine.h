#pragma once

#include <ostream>
#include <string_view>

namespace tovrel {

/// Writes "tovrel: " and the message as one line, whatever the message holds.
void printErrorLine(std::ostream& error, std::string_view message);

} // namespace tovrel
