#pragma once

#include <chrono>
#include <cstddef>

#include "platform/linux/dbus/CallLimits.h"

namespace tovrel {

/// Limits for one read of an application's menus, for all sources together.
struct MenuReadLimits {
    /// The application counts as hung after this long without any answer. A healthy one answers within 3 ms,
    /// even while it starts up. With the time to find the application (measured below 10 ms) a hung one costs
    /// less than 300 ms, once per read, because the read then ends.
    std::chrono::milliseconds silence{250};
    /// The time for one whole read, however steadily the application answers. The largest menu bar measured
    /// (985 objects) takes 65 ms; ten times its size on a machine three times slower still fits.
    std::chrono::milliseconds total{2000};
    /// Objects in a menu bar; more are a mistake or an attack. This is ten times the largest measured bar;
    /// each object takes about 2 KB by the time it can be searched for.
    std::size_t nodes = 10'000;
    /// Entries of one menu; the rest is left out. Nobody reads further down in a menu, and unlimited lists of
    /// bookmarks or recent files would use up the time for other menus.
    std::size_t entriesPerMenu = 1'000;
    /// Levels below the bar. Qt uses two for each level of menus, so this is 16 levels of menus.
    std::size_t depth = 32;
    /// Objects looked at in the search for the bar. A measured application without a bar had about 400.
    std::size_t searchedNodes = 4'000;
    /// Levels below a window that are searched for a bar; the deepest bar met is at 5.
    std::size_t searchedDepth = 8;
    /// Calls under way at a time. Measured: 8 take 1.6 times as long, 512 save no more than a tenth.
    std::size_t callsInFlight = 64;

    // The following limit what an application may send and what is kept of it, for each source of one read.

    /// Bytes that are received, whatever they mean. The largest menu bar measured (985 objects over the
    /// accessibility bus) takes 600 KB, an office suite's published menus 300 KB.
    std::size_t received = std::size_t{16} << 20U;
    /// Values in the answers that are looked at, even those that are only skipped: a machine at rest skips
    /// five in a microsecond. The largest menu bar measured has 25,000.
    std::size_t values = 250'000;
    /// Bytes of text that are kept while the answers are put together: titles, names of actions, paths of
    /// objects. The largest menu bar measured has 60 KB.
    std::size_t textBytes = std::size_t{2} << 20U;
    /// Bytes of values that are kept to be compared and sent back: targets and states of actions. Real values
    /// are a number or a word.
    std::size_t valueBytes = std::size_t{256} << 10U;

    /// Bytes of the menu paths of all entries together, each title counted with the overhead of a text. Every
    /// entry carries its whole path from here on, so a long title above many entries takes the product of
    /// both, and about twelve times that by the time it can be searched for. The largest menu bar measured
    /// has 140 KB.
    std::size_t pathBytes = std::size_t{1} << 20U;

    /// The limits for the calls of one source.
    [[nodiscard]] CallLimits ofCalls() const {
        return {.silence = silence,
                .total = total,
                .callsInFlight = callsInFlight,
                .received = received,
                .values = values,
                .textBytes = textBytes,
                .valueBytes = valueBytes};
    }
};

} // namespace tovrel
