#include "settings/SettingsViewModel.h"

#include <algorithm>
#include <utility>

#include "commands/CommandIndex.h"
#include "settings/SettingsMenuLists.h"
#include "settings/SettingsText.h"
#include "support/UUID.h"

namespace tovrel {
namespace {

template <typename Record>
const Record* findByID(const std::vector<Record>& records, const Text& id) {
    const auto found =
        std::find_if(records.begin(), records.end(), [&](const Record& record) { return record.id == id; });
    return found == records.end() ? nullptr : &*found;
}

} // namespace

SettingsViewModel::SettingsViewModel(SettingsStores stores, SettingsProviders providers)
    : store_(stores.rules), historyStore_(stores.history), customCommandStore_(stores.customCommands),
      paletteSettingsStore_(stores.paletteSettings), notificationSettingsStore_(stores.notifications),
      unstoredChange_(stores.unstoredChange), providers_(std::move(providers)) {
    reload();
}

void SettingsViewModel::reload() {
    isAccessibilityTrusted_.set(providers_.accessibilityPermission());
    currentApplication_.set(providers_.currentApplication());
    defaultBehavior_.set(store_.defaultBehavior());
    const std::optional<CurrentApplicationContext> application = currentApplication_.get();
    currentBehavior_.set(application ? store_.behavior(application->bundleID) : defaultBehavior_.get());
    appBehaviorSettings_.set(store_.appBehaviorSettings());
    menuBlacklistRules_.set(store_.menuBlacklistRules());
    customCommands_.set(customCommandStore_.customCommands());
    commandHistoryEntries_.set(historyStore_.entries());
    showCheckedStatus_.set(paletteSettingsStore_.showCheckedStatus().get());
    commandShortcutOpensSettings_.set(paletteSettingsStore_.commandShortcutOpensSettings().get());
    notifiesOfCommandFailures_.set(notificationSettingsStore_.commandFailures());

    const std::vector<ScannedMenuItem> menuItems = providers_.menuItems();
    const std::optional<Text> bundleID = application ? std::optional(application->bundleID) : std::nullopt;
    menuRuleCandidates_.set(
        settings_menu_lists::ruleCandidates(menuItems, bundleID, menuBlacklistRules_.get()));
    menuCommandSettings_.set(settings_menu_lists::commandSettings(
        menuItems, bundleID, store_.menuCommandAliasRules(), *historyStore_.snapshot()));
}

void SettingsViewModel::setDefaultBehavior(AppBehaviorRule rule) {
    store_.setDefaultBehavior(rule);
    reload();
}

void SettingsViewModel::setCurrentBehavior(AppBehaviorRule rule) {
    if (const auto& application = currentApplication_.get()) {
        store_.setBehavior(rule, application->bundleID);
        reload();
    }
}

void SettingsViewModel::setAppBehavior(AppBehaviorRule rule, const Text& bundleID) {
    store_.setBehavior(rule, bundleID);
    reload();
}

void SettingsViewModel::removeAppBehavior(const Text& bundleID) {
    store_.removeBehavior(bundleID);
    reload();
}

void SettingsViewModel::addMenuBlacklistRule(const Text& candidateID, MenuBlacklistMode mode) {
    if (const SettingsMenuRuleCandidate* candidate = findByID(menuRuleCandidates_.get(), candidateID)) {
        hideMenuPath(joined(candidate->targetPath, " > "), mode);
    }
}

void SettingsViewModel::hideMenuPath(const Text& joinedPath, MenuBlacklistMode mode) {
    const std::vector<Text> path = settings_text::separated(joinedPath, '>');
    if (const auto& application = currentApplication_.get(); application && !path.empty()) {
        store_.addMenuBlacklistRule(application->bundleID, path, mode);
        reload();
    }
}

void SettingsViewModel::removeMenuBlacklistRule(const Text& id) {
    store_.removeMenuBlacklistRule(id);
    reload();
}

void SettingsViewModel::saveMenuCommandAliases(const Text& settingID, const std::vector<Text>& aliases) {
    const auto& application = currentApplication_.get();
    const SettingsMenuCommandSetting* setting = menuCommandSetting(settingID);
    if (application && setting != nullptr) {
        store_.setMenuCommandAliases(application->bundleID, setting->targetPath, aliases);
        reload();
    }
}

void SettingsViewModel::setMenuCommandFavorite(const Text& settingID, bool isFavorite) {
    const auto& application = currentApplication_.get();
    const SettingsMenuCommandSetting* setting = menuCommandSetting(settingID);
    if (application && setting != nullptr) {
        historyStore_.setFavorite(isFavorite,
                                  CommandIndex::menuCommandID(setting->targetPath, application->bundleID));
        reload();
    }
}

const SettingsMenuCommandSetting* SettingsViewModel::menuCommandSetting(const Text& id) const {
    return findByID(menuCommandSettings_.get(), id);
}

bool SettingsViewModel::saveCustomCommand(const CustomCommandForm& form) {
    if (form.editingID && findByID(customCommands_.get(), *form.editingID) == nullptr) {
        return false;
    }
    std::optional<Text> appScope;
    if (form.usesCurrentApp) {
        const auto& application = currentApplication_.get();
        if (!application) {
            return false;
        }
        appScope = application->bundleID;
    }
    customCommandStore_.saveCustomCommand({.id = form.editingID ? *form.editingID : makeUUID(),
                                           .title = trimmed(form.title),
                                           .kind = form.kind,
                                           .payload = trimmed(form.payload),
                                           .appScope = std::move(appScope),
                                           .aliases = settings_text::aliasesFrom(form.aliases),
                                           .isEnabled = form.isEnabled});
    reload();
    return true;
}

void SettingsViewModel::deleteCustomCommand(const Text& id) {
    customCommandStore_.deleteCustomCommand(id);
    reload();
}

void SettingsViewModel::clearHistory() {
    historyStore_.clear();
    reload();
}

void SettingsViewModel::setShowCheckedStatus(bool isShown) {
    paletteSettingsStore_.setShowCheckedStatus(isShown);
    reload();
}

void SettingsViewModel::setNotifiesOfCommandFailures(bool isWanted) {
    notificationSettingsStore_.setCommandFailures(isWanted);
    reload();
}

} // namespace tovrel
