#include "app/CommandLine.h"

int main(int argc, char** argv) {
    return tovrel::runCommandLine(argc, argv);
}
