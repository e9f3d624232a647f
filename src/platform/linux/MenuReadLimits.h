#pragma once

#include <chrono>
#include <cstddef>

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
    /// Objects in a menu bar; more are a mistake or an attack, and would not be read in `total` either.
    std::size_t nodes = 20'000;
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
};

} // namespace tovrel
