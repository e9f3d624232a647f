#pragma once

#include <vector>

#include "model/CustomCommand.h"
#include "support/Text.h"

/// Splits and joins the texts of the settings.
namespace tovrel::settings_text {

/// The pieces between the separators, trimmed; empty ones are left out.
[[nodiscard]] std::vector<Text> separated(const Text& text, char separator);

/// The list that an alias field holds.
[[nodiscard]] inline std::vector<Text> aliasesFrom(const Text& field) {
    return separated(field, ',');
}

/// The content of an alias field for a list.
[[nodiscard]] inline Text aliasField(const std::vector<Text>& aliases) {
    return joined(aliases, ", ");
}

/// The title of a row of the history: a custom command's title, a menu command's path, or the id of anything
/// else, such as a deleted custom command.
[[nodiscard]] Text historyRowTitle(const Text& commandID, const std::vector<CustomCommand>& customCommands);

} // namespace tovrel::settings_text
