#pragma once

#include <random>
#include <string>
#include <vector>

#include "model/Command.h"

namespace tovrel::samples {

/// A menu command as it is in the command list.
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

/// Commands of many shapes and scripts, with repeated and with nearly equal titles.
inline std::vector<Command> assortedCommands(std::mt19937& random, std::size_t count) {
    static const std::vector<std::string> words{
        "Save",  "As…",     "Édition",  "Open",   "Recent", "File",     "Файл",       "Сохранить",
        "как",   "Правка",  "ファイル", "保存",   "データ", "編集する", "ウィンドウ", "한국어",
        "저장",  "가",      "\u11A8x",  "Αρχείο", "ναός",   "แฟ้ม",      "บันทึก",       "हिन्दी",
        "किताब", "שמירה",   "حفظ",      "１２",   "²x",     "ーx",      "か",         "\u3099",
        "e",     "\u0301n", "İz",       "ızgara", "Straße", "4",        "a",          "ab",
        "b",     "PDF/A-1", "…",        "›",      "İ",      "ﬁn",       "🎨 Farbe",    "Insert",
        "IMAGE", "Индекс",  "DIŞ"};
    const auto pick = [&](std::size_t bound) {
        return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
    };
    const auto title = [&] {
        std::string text = words[pick(words.size())];
        for (std::size_t extra = pick(3); extra > 0; --extra) {
            text += " " + words[pick(words.size())];
        }
        return Text(text);
    };
    std::vector<Command> commands;
    while (commands.size() < count) {
        Command command;
        if (pick(8) == 0) {
            command = shellCommand(title(), title());
        } else {
            std::vector<Text> path{title(), title()};
            if (pick(3) == 0) {
                path.push_back(title());
            }
            command = menuCommand(path, pick(4) == 0 ? std::optional<Text>("⌘⇧S") : std::nullopt);
        }
        for (std::size_t aliases = pick(4); aliases > 1; --aliases) {
            command.aliases.push_back(title());
        }
        command.isEnabled = pick(10) != 0;
        command.rankSignals.isFavorite = pick(12) == 0;
        command.rankSignals.usageCount =
            static_cast<std::int64_t>(pick(3) == 0 ? pick(14) : 0) - (pick(40) == 0 ? 99 : 0);
        if (command.rankSignals.usageCount > 0) {
            command.rankSignals.lastUsedAt = PointInTime{1};
        }
        commands.push_back(std::move(command));
    }
    return commands;
}

} // namespace tovrel::samples
