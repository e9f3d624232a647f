#pragma once

#include <chrono>
#include <cstddef>

#include "platform/linux/dbus/CallLimits.h"

namespace tovrel {

/// What one read of an application's menus may cost, all sources of them together.
struct MenuReadLimits {
    /// Without any answer for this long the application counts as hung. A healthy one answers within 3 ms,
    /// also while it starts up; with the way to the application (measured below 10 ms) a hung one costs less
    /// than 300 ms, once per read, since the read then ends.
    std::chrono::milliseconds silence{250};
    /// For one read in whole, however steadily the application answers. The largest menu bar measured (985
    /// objects) takes 65 ms; ten times its size on a machine three times slower still fits.
    std::chrono::milliseconds total{2000};
    /// Objects in a menu bar; more are a mistake or an attack. Ten times the largest that was measured; each
    /// costs about 2 KB by the time it can be searched for.
    std::size_t nodes = 10'000;
    /// Entries of one menu; the rest is left out. Nobody reads further down in a menu, but lists of bookmarks
    /// or of recent files that an application puts there without measure would use up the time for the
    /// others.
    std::size_t entriesPerMenu = 1'000;
    /// Levels below the bar. Qt uses two for each level of menus, so this is 16 levels of menus.
    std::size_t depth = 32;
    /// Objects looked at while the bar is searched for. An application without one that was measured had
    /// about 400.
    std::size_t searchedNodes = 4'000;
    /// Levels below a window where a bar is searched for; the deepest met is 5.
    std::size_t searchedDepth = 8;
    /// Calls under way at a time. Measured: 8 take 1.6 times as long, 512 save no more than a tenth.
    std::size_t callsInFlight = 64;

    // What an application may send, and what is kept of it. The following hold for each source of one read.

    /// Bytes that are received, whatever they are. The largest menu bar measured (985 objects over the
    /// accessibility bus) takes 600 KB, an office suite's published menus 300 KB.
    std::size_t received = std::size_t{16} << 20U;
    /// Values in the answers that are looked at, also those that nobody wants and that are only passed by to
    /// come to the next: a steady machine passes five in a microsecond. The largest menu bar measured has
    /// 25,000.
    std::size_t values = 250'000;
    /// Bytes of text that are kept while an answer is put together with the others: titles, names of actions,
    /// paths of objects. The largest menu bar measured has 60 KB.
    std::size_t textBytes = std::size_t{2} << 20U;
    /// Bytes of values that are kept to be compared and sent back: targets and states of actions. Real ones
    /// are a number or a word.
    std::size_t valueBytes = std::size_t{256} << 10U;

    /// Bytes of the menu paths of all entries together, each title counted with what a text takes besides:
    /// every entry carries its whole path from here on, so that one long title over many entries costs their
    /// product, about twelve times until it can be searched for. The largest menu bar measured has 140 KB.
    std::size_t pathBytes = std::size_t{1} << 20U;

    /// Those of them that the calls of one source keep.
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
