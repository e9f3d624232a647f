// Reads the menu bar of a running application with this program's reader and with the platform's client
// library, alternately, each time in a fresh process with a connection of its own, and prints the medians.

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <iostream>
#include <optional>
#include <string_view>
#include <unistd.h>
#include <vector>

#include <sys/wait.h>

#include "LibatspiWalk.h"
#include "platform/linux/LinuxAccessibility.h"

namespace {

using namespace tovrel;

constexpr int rounds = 15;

struct Measurement {
    double milliseconds = 0;
    std::size_t nodes = 0;
    std::size_t calls = 0;
};

std::size_t readEverything(AccessibilityElement& element) {
    std::size_t elements = 1;
    (void)element.string("AXTitle");
    (void)element.boolean("AXEnabled");
    (void)element.string("AXMenuItemMarkChar");
    (void)element.string("AXMenuItemCmdChar");
    (void)element.integer("AXMenuItemCmdModifiers");
    if (const auto children = element.elements("AXChildren")) {
        for (const auto& child : *children) {
            elements += readEverything(*child);
        }
    }
    return elements;
}

Measurement readWith(LinuxAccessibility& accessibility, std::int32_t processIdentifier) {
    Measurement result;
    if (const auto application = accessibility.applicationElement(processIdentifier)) {
        if (const auto bar = application->element("AXMenuBar")) {
            readEverything(*bar);
            result.nodes = accessibility.lastReport()->nodes;
            result.calls = accessibility.lastReport()->calls;
        }
    }
    return result;
}

template <typename Work>
Measurement timed(const Work& work) {
    const auto start = std::chrono::steady_clock::now();
    Measurement result = work();
    result.milliseconds =
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    return result;
}

/// Runs the work in a child process, so that nothing it caches helps the next round.
template <typename Work>
std::optional<Measurement> timedInChild(const Work& work) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        return std::nullopt;
    }
    const pid_t child = fork();
    if (child == 0) {
        const Measurement result = timed(work);
        const bool written = write(ends[1], &result, sizeof result) == sizeof result;
        _exit(written ? 0 : 1);
    }
    close(ends[1]);
    Measurement result;
    const bool isRead = read(ends[0], &result, sizeof result) == sizeof result;
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return isRead ? std::optional(result) : std::nullopt;
}

Measurement median(std::vector<Measurement> measurements) {
    std::sort(measurements.begin(), measurements.end(),
              [](const Measurement& left, const Measurement& right) {
                  return left.milliseconds < right.milliseconds;
              });
    return measurements.at(measurements.size() / 2);
}

} // namespace

int main(int argc, char** argv) {
    const std::string_view argument = argc == 2 ? argv[1] : "";
    std::int32_t processIdentifier = 0;
    std::from_chars(argument.data(), argument.data() + argument.size(), processIdentifier);
    if (processIdentifier <= 0) {
        std::cerr << "usage: tovrel_menu_reading_bench PROCESS-IDENTIFIER\n";
        return 2;
    }

    const auto own = [&] {
        LinuxAccessibility accessibility({std::make_shared<AtspiBus>(), std::make_shared<SessionBus>()});
        return readWith(accessibility, processIdentifier);
    };
    const auto library = [&] { return Measurement{0, walkMenusWithLibatspi(processIdentifier), 0}; };

    std::vector<Measurement> ownRounds;
    std::vector<Measurement> libraryRounds;
    for (int round = 0; round < rounds; ++round) {
        const auto ours = timedInChild(own);
        const auto theirs = timedInChild(library);
        if (!ours || !theirs || ours->nodes == 0 || theirs->nodes == 0) {
            std::cerr << "no menu bar could be read of process " << processIdentifier << '\n';
            return 1;
        }
        ownRounds.push_back(*ours);
        libraryRounds.push_back(*theirs);
    }

    LinuxAccessibility accessibility({std::make_shared<AtspiBus>(), std::make_shared<SessionBus>()});
    std::vector<Measurement> connectedRounds;
    connectedRounds.reserve(rounds);
    for (int round = 0; round < rounds; ++round) {
        connectedRounds.push_back(timed([&] { return readWith(accessibility, processIdentifier); }));
    }

    const Measurement ours = median(ownRounds);
    const Measurement connected = median(connectedRounds);
    const Measurement theirs = median(libraryRounds);
    std::cout << "medians of " << rounds << " rounds\n"
              << "this reader, fresh process:     " << ours.milliseconds << " ms, " << ours.nodes
              << " objects, " << ours.calls << " calls\n"
              << "this reader, already connected: " << connected.milliseconds << " ms\n"
              << "libatspi, fresh process:        " << theirs.milliseconds << " ms, " << theirs.nodes
              << " objects\n"
              << "ratio (fresh processes):        " << theirs.milliseconds / ours.milliseconds << '\n';
    return 0;
}
