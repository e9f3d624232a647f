#pragma once

#include <string>
#include <vector>

#include "model/Command.h"

namespace tovrel::samples {

/// A menu command as the command list holds it.
inline Command menuCommand(const std::vector<Text>& path, std::optional<Text> shortcut = std::nullopt) {
    return {.id = "menu:org.example.Editor:" + joined(path, "/").utf8(),
            .source = CommandSource::menu,
            .appScope = "org.example.Editor",
            .title = path.back(),
            .subtitle = joined({path.begin(), path.end() - 1}, " › "),
            .menuPath = path,
            .shortcut = std::move(shortcut),
            .aliases = {},
            .searchTokens = path,
            .isEnabled = true,
            .isChecked = false,
            .rankSignals = {},
            .action = MenuAction{path}};
}

inline Command shellCommand(const Text& title, const Text& payload, std::vector<Text> aliases = {}) {
    const CustomCommand custom{.id = "0D3AF1C4-52B8-4B0E-9C2B-6E1B2C3D4E5F",
                               .title = title,
                               .kind = CustomCommandKind::shellScript,
                               .payload = payload,
                               .appScope = std::nullopt,
                               .aliases = aliases,
                               .isEnabled = true};
    return {.id = "custom:" + custom.id.utf8(),
            .source = CommandSource::custom,
            .appScope = std::nullopt,
            .title = title,
            .subtitle = "Shell Command",
            .menuPath = {},
            .shortcut = std::nullopt,
            .aliases = std::move(aliases),
            .searchTokens = {"shellScript", payload},
            .isEnabled = true,
            .isChecked = false,
            .rankSignals = {},
            .action = custom};
}

} // namespace tovrel::samples
