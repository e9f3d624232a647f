// Reads the menu bar of a running application again and again in one process, as the resident program does
// over a long time, and prints how the reads ended, how long they took and what this process keeps in memory.

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/menus/LinuxAccessibility.h"
#include "platform/x11/windows/X11WindowList.h"

namespace {

using namespace tovrel;

/// The number of reads after which all one-time work is done.
constexpr int warmUp = 100;

/// The memory in kB that only this process has written to (proc(5), smaps_rollup).
long privateMemory() {
    std::ifstream rollup("/proc/self/smaps_rollup");
    std::string word;
    long kilobytes = 0;
    while (rollup >> word) {
        if (word == "Private_Dirty:") {
            rollup >> kilobytes;
        }
    }
    return kilobytes;
}

int numberIn(std::string_view argument) {
    int number = 0;
    std::from_chars(argument.data(), argument.data() + argument.size(), number);
    return number;
}

} // namespace

int main(int argc, char** argv) {
    const int processIdentifier = argc == 3 ? numberIn(argv[1]) : 0;
    const int reads = argc == 3 ? numberIn(argv[2]) : 0;
    if (processIdentifier <= 0 || reads <= warmUp) {
        std::cerr << "usage: tovrel_menu_soak PROCESS-IDENTIFIER READS (more than " << warmUp << ")\n";
        return 2;
    }
    X11WindowList windows;
    LinuxAccessibility accessibility({std::make_shared<AtspiBus>(), std::make_shared<SessionBus>()},
                                     [&](std::int32_t process) { return windows.windowsOf(process); });
    std::map<MenuReadOutcome, int> outcomes;
    long memoryBefore = 0;
    std::vector<std::chrono::microseconds> times;
    for (int read = 0; read < reads; ++read) {
        if (read == warmUp) {
            memoryBefore = privateMemory();
        }
        (void)accessibility.applicationElement(processIdentifier)->element("AXMenuBar");
        const MenuReadReport report = accessibility.lastReport().value();
        ++outcomes[report.outcome];
        times.push_back(report.elapsed);
    }
    std::nth_element(times.begin(), times.begin() + reads / 2, times.end());
    std::cout << reads << " reads, " << outcomes[MenuReadOutcome::completed] << " of everything; median "
              << std::chrono::duration<double, std::milli>(times[times.size() / 2]).count() << " ms; "
              << accessibility.lastReport()->nodes << " objects at last; own memory " << memoryBefore
              << " kB, then " << privateMemory() << " kB\n";
    return 0;
}
