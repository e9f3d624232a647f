// Reads the menu bar of a running application in three ways in turn and prints the medians: as this program
// does, from each of its sources alone, and with the platform's client library. Each read runs in a fresh
// process with its own connections.

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>
#include <string_view>
#include <unistd.h>
#include <vector>

#include <sys/wait.h>

#include "LibatspiWalk.h"
#include "platform/linux/menus/LinuxAccessibility.h"
#include "platform/linux/menus/dbusmenu/DBusMenuReader.h"
#include "platform/linux/menus/gtk/GtkMenuReader.h"
#include "platform/x11/windows/X11WindowList.h"

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

using Windows = std::vector<ApplicationWindow>;

Measurement measured(const MenuReadReport& report) {
    return {0, report.nodes, report.calls};
}

/// Reads as the program does; without windows, only from the accessibility bus.
Measurement readWith(LinuxAccessibility& accessibility, std::int32_t processIdentifier) {
    const auto bar = accessibility.applicationElement(processIdentifier)->element("AXMenuBar");
    if (!bar) {
        return {};
    }
    readEverything(*bar);
    return measured(accessibility.lastReport().value());
}

LinuxAccessibility access(const Windows& windows) {
    return LinuxAccessibility({std::make_shared<AtspiBus>(), std::make_shared<SessionBus>()},
                              [windows](std::int32_t) { return windows; });
}

Measurement readPublished(const Windows& windows) {
    SessionBus bus;
    for (const ApplicationWindow& window : windows) {
        if (window.gtkMenus && bus.connection() != nullptr) {
            return measured(
                readGtkMenuBar(*bus.connection(), *window.gtkMenus, {}, std::chrono::steady_clock::now())
                    .report);
        }
    }
    return {};
}

Measurement readRegistered(const Windows& windows) {
    SessionBus bus;
    const auto now = std::chrono::steady_clock::now();
    const auto window = windows.empty() ? std::nullopt : windows.front().registrarIdentifier;
    const auto menu = window && bus.connection() != nullptr
                          ? registeredMenu(*bus.connection(), *window, {}, now)
                          : std::nullopt;
    return menu ? measured(readDBusMenuBar(*bus.connection(), *menu, {}, now).report) : Measurement();
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

    const Windows windows = X11WindowList().windowsOf(processIdentifier);
    struct Reader {
        const char* name;
        std::function<Measurement()> read;
        std::vector<Measurement> rounds;
    };
    std::array readers{
        Reader{"as the program reads",
               [&] {
                   LinuxAccessibility accessibility = access(windows);
                   return readWith(accessibility, processIdentifier);
               },
               {}},
        Reader{"accessibility bus",
               [&] {
                   LinuxAccessibility accessibility = access({});
                   return readWith(accessibility, processIdentifier);
               },
               {}},
        Reader{"org.gtk.Menus", [&] { return readPublished(windows); }, {}},
        Reader{"com.canonical.dbusmenu", [&] { return readRegistered(windows); }, {}},
        Reader{"libatspi",
               [&] {
                   return Measurement{0, walkMenusWithLibatspi(processIdentifier), 0};
               },
               {}},
    };
    for (int round = 0; round < rounds; ++round) {
        for (Reader& reader : readers) {
            if (const auto measurement = timedInChild(reader.read)) {
                reader.rounds.push_back(*measurement);
            }
        }
    }
    const auto hasMenus = [](const Reader& reader) {
        return reader.rounds.size() == rounds && median(reader.rounds).nodes > 1;
    };
    if (!hasMenus(readers.front())) {
        std::cerr << "no menu bar could be read of process " << processIdentifier << '\n';
        return 1;
    }
    std::cout << "medians of " << rounds << " rounds, each in a fresh process: ms, objects, calls\n";
    for (const Reader& reader : readers) {
        std::cout << reader.name << ": ";
        if (hasMenus(reader)) {
            const Measurement middle = median(reader.rounds);
            std::cout << middle.milliseconds << ' ' << middle.nodes << ' ' << middle.calls << '\n';
        } else {
            std::cout << "none\n";
        }
    }

    LinuxAccessibility accessibility = access(windows);
    std::vector<Measurement> connectedRounds;
    connectedRounds.reserve(rounds);
    for (int round = 0; round < rounds; ++round) {
        connectedRounds.push_back(timed([&] { return readWith(accessibility, processIdentifier); }));
    }
    std::cout << "as the program reads, already connected: " << median(connectedRounds).milliseconds << '\n';
    if (hasMenus(readers.back())) {
        std::cout << "libatspi / as the program reads: "
                  << median(readers.back().rounds).milliseconds / median(readers.front().rounds).milliseconds
                  << '\n';
    }
    return 0;
}
