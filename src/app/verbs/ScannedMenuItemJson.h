#pragma once

#include "menus/ScannedMenuItem.h"
#include "support/Json.h"

namespace tovrel {

/// All fields but the element, children nested; an absent shortcut is left out.
json::Value toJson(const ScannedMenuItem& item);

} // namespace tovrel
