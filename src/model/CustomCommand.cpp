#include "model/CustomCommand.h"

#include <cstddef>

#include <nlohmann/json.hpp>

namespace tovrel {
namespace {

struct KindTexts {
    const char* rawValue;
    const char* paletteLabel;
    const char* settingsLabel;
};

/// In declaration order of CustomCommandKind.
constexpr std::array<KindTexts, allCustomCommandKinds.size()> kindTexts{{
    {"shellScript", "Shell Command", "Shell"},
    {"appleScript", "AppleScript", "AppleScript"},
    {"open", "Open", "Open"},
    {"shortcut", "Shortcut", "Shortcut"},
}};

const KindTexts& textsOf(CustomCommandKind kind) {
    return kindTexts.at(static_cast<std::size_t>(kind));
}

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
    return textsOf(kind).rawValue;
}

const char* paletteLabel(CustomCommandKind kind) {
    return textsOf(kind).paletteLabel;
}

const char* settingsLabel(CustomCommandKind kind) {
    return textsOf(kind).settingsLabel;
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
