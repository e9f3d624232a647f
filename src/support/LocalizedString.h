#pragma once

#include <functional>

#include "support/Text.h"

namespace tovrel {

/// The text in the user's language that stands for a key; the key itself where there is none.
using LocalizedString = std::function<Text(const char* key)>;

} // namespace tovrel
