#include "BenchCommands.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "commands/CommandIndex.h"
#include "menus/MenuScanner.h"
#include "model/MenuPath.h"
#include "platform/memory/MemoryAccessibility.h"
#include "platform/memory/MemoryPreferencesDomain.h"
#include "platform/memory/Recording.h"

namespace tovrel::bench {
namespace {

constexpr std::array addedWords{"Édition",       "Réglages…", "Größe ändern", "Файл",     "Правка",
                                "Сохранить как", "ファイル",  "編集",         "保存する", "ウィンドウ"};

std::vector<ScannedMenuItem> recordedMenus(const TextServices& services) {
    std::vector<ScannedMenuItem> menus;
    for (const char* name : {"mousepad.json", "featherpad.json", "firefox.json"}) {
        std::ifstream file(std::filesystem::path(TOVREL_RECORDINGS) / name, std::ios::binary);
        const std::string document{std::istreambuf_iterator<char>(file), {}};
        const recording::Recording recorded = recording::parse(document);
        MemoryAccessibility accessibility;
        accessibility.setApplicationElement(recorded.application->processIdentifier(), recorded.root);
        for (ScannedMenuItem& menu : MenuScanner(accessibility, services).scan(*recorded.application)) {
            menus.push_back(std::move(menu));
        }
    }
    return menus;
}

/// A copy of the item, and of all below it, under `parent` with distinct titles for its leaves.
ScannedMenuItem renamed(const ScannedMenuItem& item, const std::vector<Text>& parent, std::size_t round,
                        std::size_t& leaves) {
    ScannedMenuItem copy = item;
    if (item.children.empty()) {
        std::string title = item.title.utf8();
        if (round > 0) {
            title.append(" ").append(std::to_string(round));
        }
        if (++leaves % 10 == 0) {
            title.append(" ").append(addedWords.at(leaves / 10 % addedWords.size()));
        }
        copy.title = title;
    }
    copy.menuPath = parent;
    if (!copy.title.empty()) {
        copy.menuPath.push_back(copy.title);
    }
    copy.id = joined(copy.menuPath, menuPathSeparator);
    for (ScannedMenuItem& child : copy.children) {
        child = renamed(child, copy.menuPath, round, leaves);
    }
    return copy;
}

} // namespace

std::vector<ScannedMenuItem> menuTree(std::size_t leafCount) {
    const TextServices services("en_US");
    const std::vector<ScannedMenuItem> recorded = recordedMenus(services);
    std::vector<ScannedMenuItem> tree;
    std::size_t leaves = 0;
    for (std::size_t round = 0; leaves < leafCount && !recorded.empty(); ++round) {
        for (const ScannedMenuItem& menu : recorded) {
            tree.push_back(renamed(menu, {}, round, leaves));
        }
    }
    return tree;
}

std::vector<Command> commands(std::size_t count) {
    const TextServices services("en_US");
    MemoryPreferencesDomain domain;
    CommandHistoryStore history(domain, "Tovrel.commandHistory", services);
    std::vector<Command> list = CommandIndex::buildCommands(menuTree(count + count / 2), {},
                                                            Text("org.example.Editor"), {}, {}, history);
    list.resize(count);
    for (std::size_t i = 0; i < list.size(); ++i) {
        list[i].isEnabled = true; // so that all of them are searched
        if (i % 17 == 0) {
            list[i].rankSignals = {.isFavorite = false,
                                   .usageCount = static_cast<std::int64_t>(i % 13),
                                   .lastUsedAt = PointInTime{1}};
        }
    }
    return list;
}

const std::vector<const char*>& queries() {
    static const std::vector<const char*> typed{
        "save as", "sav",       "open rec",  "find",    "fs",      "prefs",   "line num",
        "zoom in", "close tab", "copy",      "édition", "файл",    "fajl",    "fairu",
        "保存",    "toggle",    "uppercase", "ex pdf",  "quit",    "new win", "doc ty",
        "s",       "e",         "2",         "history", "booknew", "wrap",    "xyzzy"};
    return typed;
}

} // namespace tovrel::bench
