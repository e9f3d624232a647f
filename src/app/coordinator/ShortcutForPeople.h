#pragma once

#include "KeyboardShortcuts/SymbolicText.h"
#include "model/Shortcut.h"
#include "support/LocalizedString.h"
#include "support/Text.h"
#include "support/TextServices.h"

namespace tovrel {

/// A global shortcut spelled with the key names of this desktop's keyboards: "Ctrl+Shift+P".
[[nodiscard]] Text shortcutForPeople(const Shortcut& shortcut, const CharacterForKeyCode& characterForKeyCode,
                                     const TextServices& textServices, const LocalizedString& localized);

} // namespace tovrel
