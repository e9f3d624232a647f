#include "app/verbs/PreferenceValueJson.h"

#include <nlohmann/json.hpp>

#include "support/Base64.h"
#include "support/Overloaded.h"
#include "support/Utf8.h"

namespace tovrel {
namespace {

PreferenceData dataFrom(const json::Value& object) {
    const Text text = json::textFrom(json::member(object, "value"));
    const std::optional<Text> encoding = json::optionalTextMember(object, "encoding");
    if (!encoding) {
        return {text.utf8()};
    }
    if (*encoding != "base64") {
        throw json::DecodeError("unknown encoding \"" + encoding->utf8() + "\"");
    }
    std::optional<std::string> bytes = bytesFromBase64(text.view());
    if (!bytes) {
        throw json::DecodeError("not valid Base64");
    }
    return {std::move(*bytes)};
}

} // namespace

const char* typeName(const PreferenceValue& value) {
    return std::visit(Overloaded{[](const PreferenceData&) { return "data"; },
                                 [](const Text&) { return "string"; }, [](bool) { return "boolean"; }},
                      value);
}

json::Value toJson(const PreferenceValue& value) {
    json::Value object{{"type", typeName(value)}};
    if (const auto* data = std::get_if<PreferenceData>(&value)) {
        const bool isText = isWellFormedUtf8(data->bytes);
        object["value"] = isText ? data->bytes : base64From(data->bytes);
        if (!isText) {
            object["encoding"] = "base64";
        }
    } else if (const auto* text = std::get_if<Text>(&value)) {
        object["value"] = text->utf8();
    } else {
        object["value"] = std::get<bool>(value);
    }
    return object;
}

PreferenceValue preferenceValueFrom(const json::Value& value) {
    const Text type = json::textFrom(json::member(value, "type"));
    if (type == "data") {
        return dataFrom(value);
    }
    if (type == "string") {
        return json::textFrom(json::member(value, "value"));
    }
    if (type == "boolean") {
        return json::booleanFrom(json::member(value, "value"));
    }
    throw json::DecodeError("unknown type \"" + type.utf8() + "\"");
}

} // namespace tovrel
