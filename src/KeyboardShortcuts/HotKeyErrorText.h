#pragma once

#include "platform/HotKeyCenter.h"
#include "support/LocalizedString.h"
#include "support/Text.h"

namespace tovrel {

/// A sentence for the user that says why a shortcut does not fire.
[[nodiscard]] Text hotKeyErrorText(HotKeyError error, const LocalizedString& localized);

} // namespace tovrel
