// Prints the commands that the search benchmarks search, one per line as "File › Save", for another program
// to filter. With --queries it prints the queries instead, one per line.
//
// usage: tovrel_bench_list COUNT | --queries

#include <cstdlib>
#include <iostream>
#include <string_view>

#include "BenchCommands.h"

int main(int argc, char** argv) {
    using namespace tovrel;
    if (argc != 2) {
        std::cerr << "usage: tovrel_bench_list COUNT | --queries\n";
        return 2;
    }
    if (std::string_view(argv[1]) == "--queries") {
        for (const char* query : bench::queries()) {
            std::cout << query << '\n';
        }
        return 0;
    }
    for (const Command& command : bench::commands(std::strtoul(argv[1], nullptr, 10))) {
        std::cout << joined(command.menuPath, " › ") << '\n';
    }
    return 0;
}
