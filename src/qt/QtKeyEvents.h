#pragma once

#include <QKeyEvent>
#include <cstdint>
#include <functional>
#include <optional>

#include "model/KeyEvent.h"

namespace tovrel {

/// Returns the virtual key code of the key with this display number, which Qt reports; absent for a key
/// without one.
using KeyCodeFromScanCode = std::function<std::optional<std::uint32_t>(std::uint32_t nativeScanCode)>;

/// Converts a key press or release for the core.
///
/// The key code is the physical key's according to `keyCodeFromScanCode` (key_codes::unknown for a key
/// without one); Return, Enter, Escape and the vertical arrows are also recognised by their meaning. On Linux
/// Ctrl is the Command modifier, Super is Control, Alt is Option; the third-level key (AltGr) is no modifier.
///
/// The characters come from the key and Shift in the current layout. If Ctrl, Super or Alt is held and the
/// layout's letter is not Latin, they are the Latin letter of the same key, as in every shortcut of the
/// desktop. Keys for editing (Backspace, Tab, Delete) have no characters.
KeyEvent keyEventFrom(const QKeyEvent& event, const KeyCodeFromScanCode& keyCodeFromScanCode);

} // namespace tovrel
