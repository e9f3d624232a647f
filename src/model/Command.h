#pragma once

#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

#include "model/CustomCommand.h"
#include "support/Json.h"
#include "support/PointInTime.h"
#include "support/Text.h"

namespace tovrel {

/// The origin of a command.
enum class CommandSource { menu, custom };

/// The usage history of one command.
struct CommandRankSignals {
    bool isFavorite = false;
    std::int64_t usageCount = 0;           ///< How often it was run from the palette.
    std::optional<PointInTime> lastUsedAt; ///< Absent when it never ran.

    friend bool operator==(const CommandRankSignals&, const CommandRankSignals&) = default;
};

/// Presses the menu item at `path`: titles from the top-level menu down.
struct MenuAction {
    std::vector<Text> path;

    friend bool operator==(const MenuAction&, const MenuAction&) = default;
};

/// The action of a chosen command: press a menu item, or run a custom command.
using CommandAction = std::variant<MenuAction, CustomCommand>;

/// One palette entry: an item of the front application's menu bar, or a custom command. It is a value that
/// does not change once built.
struct Command {
    /// Stable key, the same every time the list is built; usage history is kept under it.
    /// "menu:" scope ":" path joined with "/", or "custom:" and the custom command's id.
    Text id;
    CommandSource source = CommandSource::menu;
    std::optional<Text>
        appScope; ///< Bundle identifier of the application it belongs to; absent: all or unknown.
    Text title;
    std::optional<Text> subtitle;   ///< The parent menus joined with " › ", or the custom command's kind.
    std::vector<Text> menuPath;     ///< From the top-level menu to the item; empty for custom commands.
    std::optional<Text> shortcut;   ///< Display text, modifier glyphs in the order ⌘ ⇧ ⌥ ⌃.
    std::vector<Text> aliases;      ///< Extra names the user gave it.
    std::vector<Text> searchTokens; ///< Further words it is found by.
    bool isEnabled = true;
    bool isChecked = false;
    CommandRankSignals rankSignals;
    CommandAction action;

    friend bool operator==(const Command&, const Command&) = default;
};

json::Value toJson(CommandSource source);
json::Value toJson(const CommandRankSignals& signals);
json::Value toJson(const CommandAction& action);
/// This and the two functions above throw json::EncodeError when a time of last use is not finite.
json::Value toJson(const Command& command);

/// The decoders throw json::DecodeError.
CommandSource commandSourceFrom(const json::Value& value);
CommandRankSignals commandRankSignalsFrom(const json::Value& value);
CommandAction commandActionFrom(const json::Value& value);
Command commandFrom(const json::Value& value);

} // namespace tovrel
