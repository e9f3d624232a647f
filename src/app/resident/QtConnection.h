#pragma once

#include "app/desktop/Desktop.h"

namespace tovrel {

/// Qt's own connection to the display, for what must come in one order with what Qt asks. Lives as long as
/// the application object.
ToolkitConnection connectionOfQt();

} // namespace tovrel
