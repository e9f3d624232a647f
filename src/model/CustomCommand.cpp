#include "model/CustomCommand.h"

#include <nlohmann/json.hpp>

#include "support/Fatal.h"

namespace tovrel {
namespace {

CustomCommandKind kindFrom(const json::Value& value) {
    const Text raw = json::textFrom(value);
    for (const CustomCommandKind kind : allCustomCommandKinds) {
        if (raw == rawValue(kind)) {
            return kind;
        }
    }
    throw json::DecodeError("unknown kind of custom command \"" + raw.utf8() + "\"");
}

} // namespace

const char* rawValue(CustomCommandKind kind) {
    switch (kind) {
    case CustomCommandKind::shellScript:
        return "shellScript";
    case CustomCommandKind::appleScript:
        return "appleScript";
    case CustomCommandKind::open:
        return "open";
    case CustomCommandKind::shortcut:
        return "shortcut";
    }
    noSuchValue("CustomCommandKind");
}

const char* paletteLabel(CustomCommandKind kind) {
    switch (kind) {
    case CustomCommandKind::shellScript:
        return "Shell Command";
    case CustomCommandKind::appleScript:
        return "AppleScript";
    case CustomCommandKind::open:
        return "Open";
    case CustomCommandKind::shortcut:
        return "Shortcut";
    }
    noSuchValue("CustomCommandKind");
}

json::Value toJson(const CustomCommand& command) {
    json::Value object{{"id", json::toJson(command.id)},           {"title", json::toJson(command.title)},
                       {"kind", rawValue(command.kind)},           {"payload", json::toJson(command.payload)},
                       {"aliases", json::toJson(command.aliases)}, {"isEnabled", command.isEnabled}};
    if (command.appScope) {
        object["appScope"] = json::toJson(*command.appScope);
    }
    return object;
}

CustomCommand customCommandFrom(const json::Value& value) {
    return {.id = json::textFrom(json::member(value, "id")),
            .title = json::textFrom(json::member(value, "title")),
            .kind = kindFrom(json::member(value, "kind")),
            .payload = json::textFrom(json::member(value, "payload")),
            .appScope = json::optionalTextMember(value, "appScope"),
            .aliases = json::textsFrom(json::member(value, "aliases")),
            .isEnabled = json::booleanFrom(json::member(value, "isEnabled"))};
}

} // namespace tovrel
