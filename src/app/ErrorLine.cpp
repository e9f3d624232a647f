#include "app/ErrorLine.h"

#include "app/TerminalText.h"

namespace tovrel {

void printErrorLine(std::ostream& error, std::string_view message) {
    error << "tovrel: " << terminal_text::printable(message) << '\n' << std::flush;
}

} // namespace tovrel
