#include "app/terminal/ErrorLine.h"

#include "support/PrintableText.h"

namespace tovrel {

void printErrorLine(std::ostream& error, std::string_view message) {
    error << "tovrel: " << printable(message) << '\n' << std::flush;
}

} // namespace tovrel
