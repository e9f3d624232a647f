#include "stores/RulesStore.h"

#include <algorithm>
#include <map>
#include <unordered_set>

#include <nlohmann/json.hpp>

#include "stores/StoredDocument.h"
#include "support/UUID.h"

namespace tovrel {
namespace {

constexpr const char* appBehaviorsKey = "rules.appBehaviors";
constexpr const char* defaultAppBehaviorKey = "rules.defaultAppBehavior";
constexpr const char* menuBlacklistRulesKey = "rules.menuBlacklistRules";
constexpr const char* menuCommandAliasRulesKey = "rules.menuCommandAliasRules";

using AppBehaviors = std::map<Text, AppBehaviorRule>; // by bundle identifier

AppBehaviors appBehaviors(PreferencesDomain& domain) {
    const auto decode = [](const json::Value& document) {
        AppBehaviors behaviors;
        for (const auto& [bundleID, rule] : json::requireObject(document).items()) {
            behaviors.insert_or_assign(bundleID, appBehaviorRuleFrom(rule));
        }
        return behaviors;
    };
    return stored_document::read(domain, appBehaviorsKey, decode).value_or(AppBehaviors());
}

void saveAppBehaviors(PreferencesDomain& domain, const AppBehaviors& behaviors) {
    stored_document::write(domain, appBehaviorsKey, [&] {
        json::Value document = json::Value::object();
        for (const auto& [bundleID, rule] : behaviors) {
            document[bundleID.utf8()] = toJson(rule);
        }
        return document;
    });
}

} // namespace

RulesStore::RulesStore(PreferencesDomain& defaults, const TextServices& text)
    : defaults_(defaults), text_(text) {}

AppBehaviorRule RulesStore::defaultBehavior() const {
    return stored_document::read(defaults_, defaultAppBehaviorKey, appBehaviorRuleFrom)
        .value_or(AppBehaviorRule::enabled);
}

void RulesStore::setDefaultBehavior(AppBehaviorRule rule) {
    // A value that could not be read cannot be set. It is read again, because it may be readable by now.
    static_cast<void>(defaults_.value(defaultAppBehaviorKey));
    stored_document::write(defaults_, defaultAppBehaviorKey, [rule] { return toJson(rule); });
}

AppBehaviorRule RulesStore::behavior(const Text& bundleID) const {
    const AppBehaviors behaviors = appBehaviors(defaults_);
    const auto found = behaviors.find(bundleID);
    return found == behaviors.end() ? defaultBehavior() : found->second;
}

void RulesStore::setBehavior(AppBehaviorRule rule, const Text& bundleID) {
    AppBehaviors behaviors = appBehaviors(defaults_);
    if (rule == defaultBehavior()) {
        behaviors.erase(bundleID);
    } else {
        behaviors.insert_or_assign(bundleID, rule);
    }
    saveAppBehaviors(defaults_, behaviors);
}

void RulesStore::removeBehavior(const Text& bundleID) {
    AppBehaviors behaviors = appBehaviors(defaults_);
    behaviors.erase(bundleID);
    saveAppBehaviors(defaults_, behaviors);
}

std::vector<AppBehaviorSetting> RulesStore::appBehaviorSettings() const {
    std::vector<AppBehaviorSetting> settings;
    for (const auto& [bundleID, behavior] : appBehaviors(defaults_)) {
        settings.push_back({bundleID, behavior});
    }
    std::sort(settings.begin(), settings.end(),
              [this](const AppBehaviorSetting& left, const AppBehaviorSetting& right) {
                  return text_.isOrderedBefore(left.bundleID, right.bundleID);
              });
    return settings;
}

std::vector<MenuBlacklistRule> RulesStore::menuBlacklistRules() const {
    return stored_document::readList(defaults_, menuBlacklistRulesKey, menuBlacklistRuleFrom);
}

void RulesStore::addMenuBlacklistRule(const std::optional<Text>& bundleID, const std::vector<Text>& path,
                                      MenuBlacklistMode mode) {
    std::vector<MenuBlacklistRule> rules = menuBlacklistRules();
    rules.push_back({makeUUID(), bundleID, path, mode});
    stored_document::writeList(defaults_, menuBlacklistRulesKey, rules);
}

void RulesStore::removeMenuBlacklistRule(const Text& id) {
    std::vector<MenuBlacklistRule> rules = menuBlacklistRules();
    std::erase_if(rules, [&](const MenuBlacklistRule& rule) { return rule.id == id; });
    stored_document::writeList(defaults_, menuBlacklistRulesKey, rules);
}

std::vector<MenuCommandAliasRule> RulesStore::menuCommandAliasRules() const {
    return stored_document::readList(defaults_, menuCommandAliasRulesKey, menuCommandAliasRuleFrom);
}

void RulesStore::setMenuCommandAliases(const std::optional<Text>& bundleID, const std::vector<Text>& path,
                                       const std::vector<Text>& aliases) {
    std::vector<Text> normalized = normalizedAliases(aliases);
    std::vector<MenuCommandAliasRule> rules = menuCommandAliasRules();
    std::erase_if(rules, [&](const MenuCommandAliasRule& rule) {
        return rule.appScope == bundleID && rule.targetPath == path;
    });
    if (!normalized.empty()) {
        rules.push_back({bundleID, path, std::move(normalized)});
    }
    stored_document::writeList(defaults_, menuCommandAliasRulesKey, rules);
}

std::vector<Text> RulesStore::normalizedAliases(const std::vector<Text>& aliases) const {
    std::vector<Text> normalized;
    std::unordered_set<Text> seen; // in lower case
    for (const Text& alias : aliases) {
        Text trimmedAlias = trimmed(alias);
        if (!trimmedAlias.empty() && seen.insert(text_.lowercased(trimmedAlias.view())).second) {
            normalized.push_back(std::move(trimmedAlias));
        }
    }
    return normalized;
}

} // namespace tovrel
