#pragma once

#include "support/Text.h"

namespace tovrel {

/// A fresh random UUID (version 4, RFC 9562) in its 36-character form with upper-case digits.
Text makeUUID();

} // namespace tovrel
