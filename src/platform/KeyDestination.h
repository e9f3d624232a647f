#pragma once

#include "platform/WindowSystem.h"

namespace tovrel {

/// Where the keys typed after a hot key belong: to this window if it has been shown, to another one if it has
/// been hidden.
struct KeyDestination {
    OwnWindow window = 0; ///< 0: it does not matter.
    bool shouldHaveFocus = false;
};

} // namespace tovrel
