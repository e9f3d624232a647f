#pragma once

#include <utility>

namespace tovrel {

/// Passes one key-down per physical press: a held key repeats, and some desktops report that.
struct HotKeyRepeatGuard {
    bool isKeyDown = false;

    /// Whether this key-down is the first since the key was up.
    bool keyDown() { return !std::exchange(isKeyDown, true); }
    void keyUp() { isKeyDown = false; }
};

} // namespace tovrel
