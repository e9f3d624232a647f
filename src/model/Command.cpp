#include "model/Command.h"

#include <nlohmann/json.hpp>

#include "support/Fatal.h"

namespace tovrel {

json::Value toJson(CommandSource source) {
    switch (source) {
    case CommandSource::menu:
        return "menu";
    case CommandSource::custom:
        return "custom";
    }
    noSuchValue("CommandSource");
}

json::Value toJson(const CommandRankSignals& signals) {
    json::Value object{{"isFavorite", signals.isFavorite}, {"usageCount", signals.usageCount}};
    if (signals.lastUsedAt) {
        object["lastUsedAt"] = json::toJson(*signals.lastUsedAt);
    }
    return object;
}

json::Value toJson(const CommandAction& action) {
    if (const auto* menu = std::get_if<MenuAction>(&action)) {
        return {{"menu", {{"path", json::toJson(menu->path)}}}};
    }
    return {{"custom", {{"_0", toJson(std::get<CustomCommand>(action))}}}};
}

json::Value toJson(const Command& command) {
    json::Value object{{"id", json::toJson(command.id)},
                       {"source", toJson(command.source)},
                       {"title", json::toJson(command.title)},
                       {"menuPath", json::toJson(command.menuPath)},
                       {"aliases", json::toJson(command.aliases)},
                       {"searchTokens", json::toJson(command.searchTokens)},
                       {"isEnabled", command.isEnabled},
                       {"isChecked", command.isChecked},
                       {"rankSignals", toJson(command.rankSignals)},
                       {"action", toJson(command.action)}};
    if (command.appScope) {
        object["appScope"] = json::toJson(*command.appScope);
    }
    if (command.subtitle) {
        object["subtitle"] = json::toJson(*command.subtitle);
    }
    if (command.shortcut) {
        object["shortcut"] = json::toJson(*command.shortcut);
    }
    return object;
}

CommandSource commandSourceFrom(const json::Value& value) {
    const Text raw = json::textFrom(value);
    if (raw == "menu") {
        return CommandSource::menu;
    }
    if (raw == "custom") {
        return CommandSource::custom;
    }
    throw json::DecodeError("unknown command source \"" + raw.utf8() + "\"");
}

CommandRankSignals commandRankSignalsFrom(const json::Value& value) {
    CommandRankSignals signals{.isFavorite = json::booleanFrom(json::member(value, "isFavorite")),
                               .usageCount = json::integerFrom(json::member(value, "usageCount")),
                               .lastUsedAt = std::nullopt};
    if (const json::Value* lastUsedAt = json::optionalMember(value, "lastUsedAt")) {
        signals.lastUsedAt = json::pointInTimeFrom(*lastUsedAt);
    }
    return signals;
}

CommandAction commandActionFrom(const json::Value& value) {
    json::requireObject(value);
    const bool isMenu = value.contains("menu");
    if (isMenu == value.contains("custom")) {
        throw json::DecodeError("Invalid number of keys found, expected one.");
    }
    if (isMenu) {
        return MenuAction{json::textsFrom(json::member(value["menu"], "path"))};
    }
    return customCommandFrom(json::member(value["custom"], "_0"));
}

Command commandFrom(const json::Value& value) {
    return {.id = json::textFrom(json::member(value, "id")),
            .source = commandSourceFrom(json::member(value, "source")),
            .appScope = json::optionalTextMember(value, "appScope"),
            .title = json::textFrom(json::member(value, "title")),
            .subtitle = json::optionalTextMember(value, "subtitle"),
            .menuPath = json::textsFrom(json::member(value, "menuPath")),
            .shortcut = json::optionalTextMember(value, "shortcut"),
            .aliases = json::textsFrom(json::member(value, "aliases")),
            .searchTokens = json::textsFrom(json::member(value, "searchTokens")),
            .isEnabled = json::booleanFrom(json::member(value, "isEnabled")),
            .isChecked = json::booleanFrom(json::member(value, "isChecked")),
            .rankSignals = commandRankSignalsFrom(json::member(value, "rankSignals")),
            .action = commandActionFrom(json::member(value, "action"))};
}

} // namespace tovrel
