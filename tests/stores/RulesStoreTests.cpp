#include "stores/RulesStore.h"

#include <gmock/gmock.h>

#include "stores/FailingPreferencesDomain.h"

namespace tovrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Rules : public testing::Test {
  protected:
    void putDocument(const std::string& key, const std::string& document) {
        domain.set(key, PreferenceData{document});
    }
    std::optional<std::string> document(const std::string& key) { return dataValue(domain, key); }

    FailingPreferencesDomain domain;
    TextServices text{"en_US"};
    RulesStore store{domain, text};
};

TEST_F(Rules, BehavioursThatEqualTheDefaultAreNotKept) {
    EXPECT_EQ(store.behavior("org.a"), AppBehaviorRule::enabled);
    EXPECT_THAT(store.appBehaviorSettings(), IsEmpty());

    store.setBehavior(AppBehaviorRule::disabled, "org.a");
    EXPECT_EQ(document("rules.appBehaviors"), R"({"org.a":"disabled"})");
    store.setBehavior(AppBehaviorRule::enabled, "org.a");
    EXPECT_EQ(document("rules.appBehaviors"), "{}");

    store.setBehavior(AppBehaviorRule::disabled, "org.a");
    store.setDefaultBehavior(AppBehaviorRule::disabled);
    EXPECT_EQ(document("rules.defaultAppBehavior"), R"("disabled")");
    EXPECT_EQ(store.appBehaviorSettings(),
              (std::vector<AppBehaviorSetting>{{"org.a", AppBehaviorRule::disabled}})); // stays
    EXPECT_EQ(store.behavior("org.unknown"), AppBehaviorRule::disabled);
    store.setBehavior(AppBehaviorRule::disabled, "org.a");
    EXPECT_EQ(document("rules.appBehaviors"), "{}");

    store.setDefaultBehavior(AppBehaviorRule::automatic);
    EXPECT_EQ(document("rules.defaultAppBehavior"), R"("auto")");
    EXPECT_EQ(RulesStore(store).behavior("org.unknown"), AppBehaviorRule::automatic);
}

TEST_F(Rules, BehavioursAreListedByNameAndFoundByCanonicalEquivalence) {
    putDocument("rules.appBehaviors", "{\"org.b\": \"auto\", \"Org.C\": \"disabled\", \"org.A\": "
                                      "\"enabled\", \"org.E\u0301\": \"disabled\"}");
    std::vector<std::string> ids;
    for (const AppBehaviorSetting& setting : store.appBehaviorSettings()) {
        ids.push_back(setting.bundleID.utf8());
    }
    EXPECT_THAT(ids, ElementsAre("org.A", "org.b", "Org.C", "org.E\u0301"));
    EXPECT_EQ(store.behavior("org.\u00c9"), AppBehaviorRule::disabled);
    EXPECT_EQ(store.behavior("org.c"), AppBehaviorRule::enabled); // case counts
    store.removeBehavior("org.\u00c9");
    store.removeBehavior("org.c");
    EXPECT_EQ(store.appBehaviorSettings().size(), 3U);
}

TEST_F(Rules, UnreadableDocumentsReadAsAbsentAndAreReplaced) {
    for (const char* bad : {R"("Enabled")", "enabled", R"(["enabled"])", "null", ""}) {
        putDocument("rules.defaultAppBehavior", bad);
        EXPECT_EQ(store.defaultBehavior(), AppBehaviorRule::enabled) << bad;
    }
    putDocument("rules.appBehaviors", R"({"org.a": "disabled", "org.b": "Disabled"})");
    EXPECT_EQ(store.behavior("org.a"), AppBehaviorRule::enabled);
    store.removeBehavior("org.c");
    EXPECT_EQ(document("rules.appBehaviors"), "{}");

    const std::string good =
        R"({"id": "1", "targetPath": ["File"], "mode": "excludeSelf", "appScope": null})";
    putDocument("rules.menuBlacklistRules", "[" + good + "]");
    EXPECT_EQ(
        store.menuBlacklistRules(),
        (std::vector<MenuBlacklistRule>{{"1", std::nullopt, {"File"}, MenuBlacklistMode::excludeSelf}}));
    for (const char* bad : {R"({"id": "2", "targetPath": ["File"], "mode": "exclude"})",
                            R"({"id": "2", "targetPath": "File", "mode": "excludeSelf"})",
                            R"({"targetPath": ["File"], "mode": "excludeSelf"})",
                            R"({"id": "2", "targetPath": [1], "mode": "excludeSelf"})", "1"}) {
        putDocument("rules.menuBlacklistRules", "[" + good + "," + bad + "]");
        EXPECT_THAT(store.menuBlacklistRules(), IsEmpty()) << bad;
    }
    store.removeMenuBlacklistRule("1");
    EXPECT_EQ(document("rules.menuBlacklistRules"), "[]");

    putDocument("rules.menuCommandAliasRules", R"([{"targetPath": ["File"]}])");
    EXPECT_THAT(store.menuCommandAliasRules(), IsEmpty());
    putDocument("rules.menuCommandAliasRules", R"({"targetPath": ["File"], "aliases": []})");
    EXPECT_THAT(store.menuCommandAliasRules(), IsEmpty());
}

TEST_F(Rules, BlacklistRulesMayRepeatAndAreRemovedByID) {
    store.addMenuBlacklistRule("org.a", {"File", "Save"}, MenuBlacklistMode::excludeSelf);
    store.addMenuBlacklistRule("org.a", {"File", "Save"}, MenuBlacklistMode::excludeChildren);
    store.addMenuBlacklistRule(std::nullopt, {"Edit"}, MenuBlacklistMode::excludeSelfAndChildren);
    const std::vector<MenuBlacklistRule> rules = store.menuBlacklistRules();
    ASSERT_EQ(rules.size(), 3U);
    EXPECT_NE(rules[0].id, rules[1].id);
    EXPECT_EQ(rules[0].mode, MenuBlacklistMode::excludeSelf);
    EXPECT_EQ(rules[1].mode, MenuBlacklistMode::excludeChildren);
    EXPECT_EQ(rules[2].mode, MenuBlacklistMode::excludeSelfAndChildren);
    EXPECT_EQ(rules[0].id.utf8().size(), 36U);
    EXPECT_EQ(rules[2].appScope, std::nullopt);
    EXPECT_EQ(document("rules.menuBlacklistRules")->find("null"), std::string::npos); // left out, not null
    store.removeMenuBlacklistRule(rules[0].id);
    EXPECT_THAT(store.menuBlacklistRules(), ElementsAre(rules[1], rules[2]));
}

TEST_F(Rules, AliasesAreNormalisedAndKeptOncePerScopeAndPath) {
    const std::vector<Text> path{"File", "Save As"};
    store.setMenuCommandAliases(std::nullopt, path, {" Save As ", "", "save as", "\u3000Export\n"});
    const MenuCommandAliasRule global{std::nullopt, path, {"Save As", "Export"}};
    EXPECT_THAT(store.menuCommandAliasRules(), ElementsAre(global));
    EXPECT_EQ(global.id(), Text("global:File\x1FSave As"));

    store.setMenuCommandAliases("org.a", path, {"one"});
    store.setMenuCommandAliases("org.a", {"File"}, {"two"});
    store.setMenuCommandAliases("org.a", path, {"three"}); // moves to the end
    const MenuCommandAliasRule ofFile{"org.a", {{"File"}}, {"two"}};
    EXPECT_THAT(store.menuCommandAliasRules(),
                ElementsAre(global, ofFile, MenuCommandAliasRule{"org.a", path, {"three"}}));

    store.setMenuCommandAliases("org.a", path, {" ", "\n"});
    EXPECT_THAT(store.menuCommandAliasRules(), ElementsAre(global, ofFile));
    store.setMenuCommandAliases(std::nullopt, path, {});
    EXPECT_THAT(store.menuCommandAliasRules(), ElementsAre(ofFile));

    // Scope and path compare by canonical equivalence; lower-casing works for every script.
    store.setMenuCommandAliases("org.e\u0301", {"E\u0301dition"},
                                {"\u0401\u0416", "\u0451\u0436", "e\u0301", "\u00c9"});
    EXPECT_THAT(store.menuCommandAliasRules().back().aliases, ElementsAre("\u0401\u0416", "e\u0301"));
    store.setMenuCommandAliases("org.\u00e9", {"\u00c9dition"}, {});
    EXPECT_THAT(store.menuCommandAliasRules(), ElementsAre(ofFile));
}

} // namespace
} // namespace tovrel
