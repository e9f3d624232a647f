#pragma once

#include <QKeyEvent>
#include <cstdint>
#include <functional>
#include <optional>

#include "model/KeyEvent.h"

namespace tovrel {

/// The virtual key code of a key by the number that the display has for it, as Qt reports it; absent for a
/// key without one.
using KeyCodeFromScanCode = std::function<std::optional<std::uint32_t>(std::uint32_t nativeScanCode)>;

/// A key press or release as the core sees it.
///
/// The key code is that of the physical key (key_codes::unknown for one without), by
/// `keyCodeFromScanCode`; Return, Enter, Escape and the vertical arrows are also
/// known by their meaning. On Linux Ctrl is the Command modifier, Super is Control, Alt is Option; the
/// third-level key (AltGr) is none of them.
///
/// The characters are those of the key and Shift in the current layout. While Ctrl, Super or Alt is held and
/// the layout's letter is not a Latin one, they are the Latin letter of the same key, as in every shortcut of
/// the desktop. Keys for editing (Backspace, Tab, Delete) have none.
KeyEvent keyEventFrom(const QKeyEvent& event, const KeyCodeFromScanCode& keyCodeFromScanCode);

} // namespace tovrel
