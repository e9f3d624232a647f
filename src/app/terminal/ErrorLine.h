#pragma once

#include <ostream>
#include <string_view>

namespace tovrel {

/// Writes "tovrel: " and the message as one line, even if the message has line breaks or control characters.
void printErrorLine(std::ostream& error, std::string_view message);

} // namespace tovrel
