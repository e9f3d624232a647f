#pragma once

#include <QColor>
#include <array>

/// The part of the theme that applies outside of the views; Theme.qml has the rest.
namespace tovrel::native_theme {

/// The families of the program's font, rounder ones first. The first installed one is used; without any, the
/// desktop's own font.
inline constexpr std::array fontFamilies{"Inter", "Cantarell", "Noto Sans"};

/// The colour of the symbol in the desktop's bar. No desktop tells the bar's colour; this one stands out on
/// light and on dark bars.
inline constexpr QColor statusItem(0x12, 0xa9, 0x9b);

} // namespace tovrel::native_theme
