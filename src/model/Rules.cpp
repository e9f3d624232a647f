#include "model/Rules.h"

#include <nlohmann/json.hpp>

#include "model/MenuPath.h"
#include "support/Fatal.h"

namespace tovrel {
namespace {

/// Decodes the case of `cases` that has this raw value.
template <typename Cases>
typename Cases::value_type caseFrom(const json::Value& value, const Cases& cases, const char* what) {
    const Text raw = json::textFrom(value);
    for (const auto candidate : cases) {
        if (raw == rawValue(candidate)) {
            return candidate;
        }
    }
    throw json::DecodeError(std::string("unknown ") + what + " \"" + raw.utf8() + "\"");
}

} // namespace

const char* rawValue(AppBehaviorRule rule) {
    switch (rule) {
    case AppBehaviorRule::enabled:
        return "enabled";
    case AppBehaviorRule::disabled:
        return "disabled";
    case AppBehaviorRule::automatic:
        return "auto";
    }
    noSuchValue("AppBehaviorRule");
}

const char* rawValue(MenuBlacklistMode mode) {
    switch (mode) {
    case MenuBlacklistMode::excludeSelf:
        return "excludeSelf";
    case MenuBlacklistMode::excludeChildren:
        return "excludeChildren";
    case MenuBlacklistMode::excludeSelfAndChildren:
        return "excludeSelfAndChildren";
    }
    noSuchValue("MenuBlacklistMode");
}

Text MenuCommandAliasRule::id() const {
    return (appScope ? appScope->utf8() : "global") + ":" + joined(targetPath, menuPathSeparator).utf8();
}

json::Value toJson(AppBehaviorRule rule) {
    return rawValue(rule);
}

json::Value toJson(const AppBehaviorSetting& setting) {
    return {{"bundleID", json::toJson(setting.bundleID)}, {"behavior", toJson(setting.behavior)}};
}

json::Value toJson(const MenuBlacklistRule& rule) {
    json::Value object{{"id", json::toJson(rule.id)},
                       {"targetPath", json::toJson(rule.targetPath)},
                       {"mode", rawValue(rule.mode)}};
    if (rule.appScope) {
        object["appScope"] = json::toJson(*rule.appScope);
    }
    return object;
}

json::Value toJson(const MenuCommandAliasRule& rule) {
    json::Value object{{"targetPath", json::toJson(rule.targetPath)},
                       {"aliases", json::toJson(rule.aliases)}};
    if (rule.appScope) {
        object["appScope"] = json::toJson(*rule.appScope);
    }
    return object;
}

AppBehaviorRule appBehaviorRuleFrom(const json::Value& value) {
    return caseFrom(value, allAppBehaviorRules, "application behaviour");
}

AppBehaviorSetting appBehaviorSettingFrom(const json::Value& value) {
    return {.bundleID = json::textFrom(json::member(value, "bundleID")),
            .behavior = appBehaviorRuleFrom(json::member(value, "behavior"))};
}

MenuBlacklistRule menuBlacklistRuleFrom(const json::Value& value) {
    return {.id = json::textFrom(json::member(value, "id")),
            .appScope = json::optionalTextMember(value, "appScope"),
            .targetPath = json::textsFrom(json::member(value, "targetPath")),
            .mode = caseFrom(json::member(value, "mode"), allMenuBlacklistModes, "blacklist mode")};
}

MenuCommandAliasRule menuCommandAliasRuleFrom(const json::Value& value) {
    return {.appScope = json::optionalTextMember(value, "appScope"),
            .targetPath = json::textsFrom(json::member(value, "targetPath")),
            .aliases = json::textsFrom(json::member(value, "aliases"))};
}

} // namespace tovrel
