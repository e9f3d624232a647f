#pragma once

#include <cstdint>
#include <string_view>

#include "model/Command.h"
#include "support/TextServices.h"

namespace tovrel {

/// An opaque sRGB colour.
struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Colour&, const Colour&) = default;
};

/// The accent of a symbol, and the light tint of the badge behind it.
struct ColourPair {
    Colour accent;
    Colour tint;

    friend bool operator==(const ColourPair&, const ColourPair&) = default;
};

namespace colour_pairs {
inline constexpr ColourPair red{{255, 118, 96}, {255, 233, 227}};
inline constexpr ColourPair green{{83, 168, 99}, {230, 246, 227}};
inline constexpr ColourPair purple{{144, 104, 205}, {242, 232, 255}};
inline constexpr ColourPair blue{{58, 134, 255}, {227, 239, 255}};
inline constexpr ColourPair amber{{224, 161, 39}, {255, 242, 202}};
inline constexpr ColourPair slate{{84, 129, 198}, {228, 238, 252}};
inline constexpr ColourPair taupe{{138, 123, 102}, {255, 253, 242}};
inline constexpr ColourPair teal{{25, 200, 185}, {230, 249, 246}};
} // namespace colour_pairs

/// The icon of a command in its row.
struct CommandIcon {
    std::string_view symbol; ///< The name of a symbol from a fixed set.
    ColourPair colours;

    friend bool operator==(const CommandIcon&, const CommandIcon&) = default;
};

/// The icon of a menu command, by the first rule whose word is in its title or in its menu's; all custom
/// commands have the same icon. The words are English, and common in the menus of most programs.
CommandIcon commandIcon(const Command& command, const TextServices& textServices);

} // namespace tovrel
