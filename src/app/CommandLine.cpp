#include "app/CommandLine.h"

#include <iostream>

namespace tovrel {

int runCommandLine(int argc, char** argv) {
    std::cerr << "tovrel: unknown arguments\n";
    return argc > 0 && argv != nullptr ? 2 : 1;
}

} // namespace tovrel
