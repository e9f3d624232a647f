#pragma once

#include "platform/WindowSystem.h"

namespace tovrel {

/// Where keys typed after a hot key must go: to this window if it is shown, to another one if it is hidden.
struct KeyDestination {
    OwnWindow window = 0; ///< 0 when the destination does not matter.
    bool shouldHaveFocus = false;
};

} // namespace tovrel
