#pragma once

#include "platform/linux/MenuReadReport.h"
#include "platform/linux/MenuTree.h"

namespace tovrel {

/// A menu bar as far as one source had it, and how reading it went.
struct MenuReading {
    MenuTree tree;
    MenuReadReport report;
};

} // namespace tovrel
