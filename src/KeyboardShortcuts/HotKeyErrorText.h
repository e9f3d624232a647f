#pragma once

#include "platform/HotKeyCenter.h"
#include "support/LocalizedString.h"
#include "support/Text.h"

namespace tovrel {

/// Why a shortcut does not fire, in a sentence for the user.
[[nodiscard]] Text hotKeyErrorText(HotKeyError error, const LocalizedString& localized);

} // namespace tovrel
