#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <ostream>

namespace tovrel {

/// The layout of results for people.
struct OutputStyle {
    bool isTerminal = false; ///< False for a file or another program.
    bool hasColour = false;
    std::optional<std::size_t> width; ///< Columns of the terminal, where they are known.
};

/// The standard streams of the program.
struct Console {
    std::istream& input;
    std::ostream& output;
    std::ostream& error;
    OutputStyle style;
};

} // namespace tovrel
