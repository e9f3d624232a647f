#pragma once

#include <vector>

#include "model/CustomCommand.h"
#include "support/Text.h"

/// Texts as the settings take them apart and put them together.
namespace tovrel::settings_text {

/// The pieces between the separators, each trimmed, without those that are then empty.
[[nodiscard]] std::vector<Text> separated(const Text& text, char separator);

/// What an alias field holds, as a list.
[[nodiscard]] inline std::vector<Text> aliasesFrom(const Text& field) {
    return separated(field, ',');
}

/// How an alias field shows a list.
[[nodiscard]] inline Text aliasField(const std::vector<Text>& aliases) {
    return joined(aliases, ", ");
}

/// How a row of the history names its command: a custom command by its title, a menu command by its path, and
/// what is neither (any more) by its id.
[[nodiscard]] Text historyRowTitle(const Text& commandID, const std::vector<CustomCommand>& customCommands);

} // namespace tovrel::settings_text
