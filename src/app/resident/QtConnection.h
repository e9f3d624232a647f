#pragma once

#include "app/desktop/Desktop.h"

namespace tovrel {

/// Qt's own connection to the display, for requests that must keep their order with Qt's. Lives as long as
/// the application object.
ToolkitConnection connectionOfQt();

} // namespace tovrel
