#include "settings/SettingsViewModel.h"

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/MenuPath.h"
#include "platform/memory/MemoryAccessibility.h"
#include "platform/memory/MemoryApplication.h"
#include "platform/memory/MemoryWorkspace.h"
#include "settings/SettingsViewState.h"
#include "stores/FailingPreferencesDomain.h"

namespace tovrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

ScannedMenuItem item(std::vector<Text> path, std::vector<ScannedMenuItem> children = {}) {
    ScannedMenuItem made;
    made.id = joined(path, menuPathSeparator);
    made.title = path.back();
    made.menuPath = std::move(path);
    made.children = std::move(children);
    return made;
}

template <typename Record>
std::vector<std::string> titles(const std::vector<Record>& records) {
    std::vector<std::string> found;
    found.reserve(records.size());
    for (const Record& record : records) {
        found.push_back(record.title.utf8());
    }
    return found;
}

class SettingsViewModelTest : public testing::Test {
  protected:
    static constexpr const char* exportPDF = "File\x1F"
                                             "Export\x1FPDF";

    SettingsViewModelTest() {
        menus_ = {item({"Apple"}, {item({"Apple", "About"})}),
                  item({"File"}, {item({"File", "Save"}),
                                  item({"File", "Export"}, {item({"File", "Export", "PDF"})})})};
        model_->reload();
    }

    [[nodiscard]] std::string stored(const std::string& key) {
        return dataValue(preferences_, key).value_or("");
    }
    [[nodiscard]] SettingsProviders providers() {
        return {.currentApplication = [this] { return application_; },
                .menuItems = [this] { return menus_; },
                .accessibilityPermission = [this] { return isTrusted_; }};
    }

    TextServices text_{"en_US"};
    FailingPreferencesDomain stored_;
    LastKnownPreferences preferences_{stored_};
    RulesStore rules_{preferences_, text_};
    CommandHistoryStore history_{preferences_, "history", text_};
    CustomCommandStore custom_{preferences_, "customCommands"};
    PaletteSettingsStore palette_{preferences_, "paletteSettings"};
    NotificationSettingsStore notifications_{preferences_, "notifications"};
    std::optional<CurrentApplicationContext> application_ = CurrentApplicationContext{"Bee", "B"};
    std::vector<ScannedMenuItem> menus_;
    bool isTrusted_ = false;
    std::shared_ptr<SettingsViewModel> model_ = std::make_shared<SettingsViewModel>(
        SettingsStores{rules_, history_, custom_, palette_, notifications_, preferences_.unstoredChange()},
        providers());
    SettingsViewState state_{model_};
};

TEST_F(SettingsViewModelTest, TheListsComeFromTheMenuTree) {
    EXPECT_THAT(titles(model_->menuRuleCandidates().get()),
                ElementsAre("File", "File > Save", "File > Export", "File > Export > PDF"));
    EXPECT_EQ(model_->menuRuleCandidates().get().back().id, Text(exportPDF));
    EXPECT_THAT(titles(model_->menuCommandSettings().get()),
                ElementsAre("File > Save", "File > Export > PDF"));

    rules_.addMenuBlacklistRule(std::nullopt, {"File", "Save"}, MenuBlacklistMode::excludeSelf);
    rules_.addMenuBlacklistRule(Text("other"), {"File"}, MenuBlacklistMode::excludeSelf);
    model_->reload();
    EXPECT_EQ(model_->menuRuleCandidates().get().size(), 4U) << "rules of other scopes cover nothing";
    application_.reset();
    history_.setFavorite(true, "menu:global:File/Save");
    model_->reload();
    EXPECT_THAT(titles(model_->menuRuleCandidates().get()), Not(testing::Contains("File > Save")));
    EXPECT_TRUE(model_->menuCommandSettings().get().front().isFavorite);
}

TEST_F(SettingsViewModelTest, HidingAnItemMakesARuleAndKeepsItsSearchSettings) {
    state_.selectedMenuCandidateID.set("File\x1FSave");
    state_.blacklistMode.set(MenuBlacklistMode::excludeChildren);
    state_.hideSelectedMenuItem();
    EXPECT_EQ(state_.selectedMenuCandidateID.get(), Text());
    ASSERT_EQ(rules_.menuBlacklistRules().size(), 1U);
    const MenuBlacklistRule rule = rules_.menuBlacklistRules().front();
    EXPECT_EQ(rule.appScope, Text("B"));
    EXPECT_EQ(rule.mode, MenuBlacklistMode::excludeChildren);
    EXPECT_THAT(rule.targetPath, ElementsAre(Text("File"), Text("Save")));
    EXPECT_THAT(titles(model_->menuRuleCandidates().get()), Not(testing::Contains("File > Save")));
    EXPECT_THAT(titles(model_->menuCommandSettings().get()), testing::Contains("File > Save"));
    state_.hideSelectedMenuItem();
    EXPECT_EQ(model_->menuBlacklistRules().get().size(), 1U) << "nothing is selected";

    menus_ = {item({"File"}, {item({"File", "A>B"}), item({"File", " > "})})};
    model_->reload();
    model_->addMenuBlacklistRule("File\x1F"
                                 "A>B",
                                 MenuBlacklistMode::excludeSelf);
    EXPECT_THAT(model_->menuBlacklistRules().get().back().targetPath,
                ElementsAre(Text("File"), Text("A"), Text("B")));
    application_.reset();
    model_->reload();
    model_->addMenuBlacklistRule("File", MenuBlacklistMode::excludeSelf);
    EXPECT_EQ(model_->menuBlacklistRules().get().size(), 2U) << "there is no application to hide it in";
    model_->removeMenuBlacklistRule(rule.id);
    EXPECT_EQ(model_->menuBlacklistRules().get().size(), 1U);
}

TEST_F(SettingsViewModelTest, OneButtonSavesAliasesAndTheFavourite) {
    state_.selectMenuCommandSetting(exportPDF);
    EXPECT_EQ(state_.menuCommandAliases.get(), Text());
    state_.menuCommandAliases.set(" pdf , , PDF,export ");
    state_.menuCommandFavorite.set(true);
    int reloads = 0;
    const Subscription subscription = model_->isAccessibilityTrusted().subscribe([&] { ++reloads; });
    state_.saveSearchRule();
    EXPECT_EQ(reloads, 2);
    ASSERT_EQ(rules_.menuCommandAliasRules().size(), 1U);
    EXPECT_THAT(rules_.menuCommandAliasRules().front().aliases, ElementsAre(Text("pdf"), Text("export")));
    EXPECT_TRUE(history_.rankSignals("menu:B:File/Export/PDF").isFavorite);

    state_.selectMenuCommandSetting("File\x1FSave");
    EXPECT_EQ(state_.menuCommandAliases.get(), Text());
    EXPECT_FALSE(state_.menuCommandFavorite.get());
    state_.selectMenuCommandSetting(exportPDF);
    EXPECT_EQ(state_.menuCommandAliases.get(), Text("pdf, export"));
    EXPECT_TRUE(state_.menuCommandFavorite.get());
    state_.menuCommandAliases.set(" , ");
    state_.saveSearchRule();
    EXPECT_THAT(rules_.menuCommandAliasRules(), IsEmpty());

    application_.reset();
    model_->reload();
    state_.menuCommandFavorite.set(false);
    state_.saveSearchRule();
    EXPECT_TRUE(history_.rankSignals("menu:B:File/Export/PDF").isFavorite);
}

TEST_F(SettingsViewModelTest, BehavioursFollowTheDefault) {
    model_->setCurrentBehavior(AppBehaviorRule::disabled);
    EXPECT_EQ(model_->currentBehavior().get(), AppBehaviorRule::disabled);
    state_.newAppBehavior.set(AppBehaviorRule::enabled);
    state_.addAppRule("C");
    state_.addAppRule("");
    EXPECT_EQ(model_->appBehaviorSettings().get().size(), 1U) << "what equals the default is no rule";
    model_->setDefaultBehavior(AppBehaviorRule::automatic);
    model_->setAppBehavior(AppBehaviorRule::enabled, "A");
    EXPECT_THAT(model_->appBehaviorSettings().get(),
                ElementsAre(AppBehaviorSetting{"A", AppBehaviorRule::enabled},
                            AppBehaviorSetting{"B", AppBehaviorRule::disabled}));
    model_->removeAppBehavior("B");
    EXPECT_EQ(model_->currentBehavior().get(), AppBehaviorRule::automatic);
    application_.reset();
    model_->reload();
    EXPECT_EQ(model_->currentBehavior().get(), AppBehaviorRule::automatic);
    model_->setCurrentBehavior(AppBehaviorRule::disabled);
    EXPECT_EQ(model_->appBehaviorSettings().get().size(), 1U);
}

TEST_F(SettingsViewModelTest, CustomCommandsAreWrittenEditedAndDeleted) {
    CustomCommandForm form{.title = "  Backup ",
                           .kind = CustomCommandKind::shellScript,
                           .payload = "\n./backup ",
                           .aliases = "save,, Save , b ",
                           .usesCurrentApp = true,
                           .isEnabled = false,
                           .editingID = std::nullopt};
    state_.customCommand.set(form);
    state_.saveCustomCommand();
    ASSERT_EQ(custom_.customCommands().size(), 1U);
    const CustomCommand saved = custom_.customCommands().front();
    EXPECT_EQ(saved, (CustomCommand{saved.id,
                                    "Backup",
                                    CustomCommandKind::shellScript,
                                    "./backup",
                                    Text("B"),
                                    {"save", "Save", "b"},
                                    false}));
    CustomCommandForm cleared;
    cleared.kind = CustomCommandKind::shellScript;
    EXPECT_EQ(state_.customCommand.get(), cleared) << "all but the kind";

    state_.editCustomCommand(saved.id);
    form = state_.customCommand.get();
    EXPECT_EQ(form.aliases, Text("save, Save, b"));
    EXPECT_TRUE(form.usesCurrentApp);
    EXPECT_EQ(form.editingID, saved.id);
    form.usesCurrentApp = false;
    form.title = "Back up";
    state_.customCommand.set(form);
    state_.saveCustomCommand();
    ASSERT_EQ(model_->customCommands().get().size(), 1U);
    EXPECT_EQ(model_->customCommands().get().front().appScope, std::nullopt) << "decided anew on every save";
    EXPECT_EQ(model_->customCommands().get().front().id, saved.id);

    application_.reset();
    model_->reload();
    form.usesCurrentApp = true;
    form.editingID.reset();
    state_.customCommand.set(form);
    state_.saveCustomCommand();
    EXPECT_EQ(state_.customCommand.get(), form) << "nothing saved, nothing lost";
    EXPECT_EQ(custom_.customCommands().size(), 1U);

    state_.editCustomCommand(saved.id);
    custom_.deleteCustomCommand(saved.id);
    model_->reload();
    state_.saveCustomCommand();
    EXPECT_EQ(state_.customCommand.get().editingID, saved.id) << "the edited command is gone";
    state_.deleteCustomCommand(saved.id);
    EXPECT_EQ(state_.customCommand.get(), cleared);
}

TEST_F(SettingsViewModelTest, DamagedDocumentsReadAsDefaultsAndTheNextEditRepairsThem) {
    for (const char* key : {"rules.appBehaviors", "rules.defaultAppBehavior", "rules.menuBlacklistRules",
                            "rules.menuCommandAliasRules", "history", "customCommands"}) {
        preferences_.set(key, PreferenceData{"{\"broken"});
    }
    preferences_.set("paletteSettings.showCheckedStatus", Text("maybe"));
    preferences_.set("notifications", Text("no"));
    model_->reload();
    EXPECT_EQ(model_->defaultBehavior().get(), AppBehaviorRule::enabled);
    EXPECT_TRUE(model_->notifiesOfCommandFailures().get());
    EXPECT_THAT(model_->customCommands().get(), IsEmpty());
    EXPECT_THAT(model_->commandHistoryEntries().get(), IsEmpty());
    model_->setCurrentBehavior(AppBehaviorRule::disabled);
    model_->setDefaultBehavior(AppBehaviorRule::automatic);
    model_->addMenuBlacklistRule("File", MenuBlacklistMode::excludeChildren);
    model_->saveMenuCommandAliases(exportPDF, {"x"});
    model_->setMenuCommandFavorite(exportPDF, true);
    EXPECT_TRUE(model_->saveCustomCommand({}));
    model_->setShowCheckedStatus(false);
    model_->setNotifiesOfCommandFailures(false);
    EXPECT_EQ(stored("rules.defaultAppBehavior"), "\"auto\"");
    EXPECT_EQ(model_->appBehaviorSettings().get().size(), 1U);
    EXPECT_EQ(model_->menuBlacklistRules().get().size(), 1U);
    EXPECT_TRUE(model_->menuCommandSettings().get().back().isFavorite);
    EXPECT_EQ(model_->customCommands().get().size(), 1U);
    EXPECT_EQ(preferences_.value("paletteSettings.showCheckedStatus"), PreferenceValue(false));
    EXPECT_FALSE(model_->showCheckedStatus().get());
    EXPECT_EQ(preferences_.value("notifications"), PreferenceValue(false));
    EXPECT_FALSE(model_->notifiesOfCommandFailures().get());
    model_->clearHistory();
    EXPECT_EQ(preferences_.value("history"), std::nullopt);
    EXPECT_THAT(model_->commandHistoryEntries().get(), IsEmpty());
}

TEST_F(SettingsViewModelTest, AnEditThatCannotBeStoredIsToldUntilOneCan) {
    stored_.failure = {PreferencesObstacle::laterVersion, "a later version of this program wrote it"};
    stored_.refusesWrites = true;
    model_->setCurrentBehavior(AppBehaviorRule::disabled);
    EXPECT_EQ(model_->currentBehavior().get(), AppBehaviorRule::enabled);
    EXPECT_EQ(model_->unstoredChange().get(), stored_.failure);
    model_->reload();
    EXPECT_TRUE(model_->unstoredChange().get());
    stored_.refusesWrites = false;
    model_->setMenuCommandFavorite(exportPDF, true);
    EXPECT_FALSE(model_->unstoredChange().get());
}

TEST_F(SettingsViewModelTest, TheStandardProvidersAskTheWorkspace) {
    MemoryWorkspace workspace;
    MemoryAccessibility accessibility;
    const SettingsProviders standard = SettingsProviders::standard(workspace, accessibility);
    EXPECT_EQ(standard.currentApplication(), std::nullopt);
    workspace.bringToFront(std::make_shared<MemoryApplication>(7, std::nullopt, Text("Nameless")));
    EXPECT_EQ(standard.currentApplication(), std::nullopt);
    workspace.bringToFront(std::make_shared<MemoryApplication>(8, Text("org.bee"), std::nullopt));
    EXPECT_EQ(standard.currentApplication(), (CurrentApplicationContext{"org.bee", "org.bee"}));
    EXPECT_THAT(standard.menuItems(), IsEmpty());
    EXPECT_EQ(standard.accessibilityPermission(), accessibility.isTrusted());
}

} // namespace
} // namespace tovrel
