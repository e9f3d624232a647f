#pragma once

#include <array>
#include <optional>
#include <vector>

#include "support/Json.h"
#include "support/Text.h"

namespace tovrel {

/// The kind of payload that a custom command has.
enum class CustomCommandKind { shellScript, appleScript, open, shortcut };

/// Every kind, in the order in which they are offered to the user.
inline constexpr std::array allCustomCommandKinds{CustomCommandKind::shellScript,
                                                  CustomCommandKind::appleScript, CustomCommandKind::open,
                                                  CustomCommandKind::shortcut};

/// The name under which a kind is stored, e.g. "shellScript".
const char* rawValue(CustomCommandKind kind);

/// The kind's name in the palette, e.g. "Shell Command".
const char* paletteLabel(CustomCommandKind kind);

/// A local action that the user has defined.
struct CustomCommand {
    Text id;    ///< A random UUID that never changes; see makeUUID().
    Text title; ///< Shown in the palette.
    CustomCommandKind kind = CustomCommandKind::shellScript;
    Text payload;                 ///< The command line, script, target or Shortcut name, by kind.
    std::optional<Text> appScope; ///< Bundle identifier of the only application it is listed in; absent: all.
    std::vector<Text> aliases;    ///< Extra search names, in the order typed.
    bool isEnabled = true;

    friend bool operator==(const CustomCommand&, const CustomCommand&) = default;
};

json::Value toJson(const CustomCommand& command);

/// Throws json::DecodeError.
CustomCommand customCommandFrom(const json::Value& value);

} // namespace tovrel
