#pragma once

#include <optional>
#include <vector>

#include "model/CustomCommand.h"
#include "model/Rules.h"
#include "settings/CustomCommandForm.h"
#include "settings/SettingsProviders.h"
#include "settings/SettingsRecords.h"
#include "stores/CommandHistoryStore.h"
#include "stores/CustomCommandStore.h"
#include "stores/LastKnownPreferences.h"
#include "stores/NotificationSettingsStore.h"
#include "stores/PaletteSettingsStore.h"
#include "stores/RulesStore.h"
#include "support/Observable.h"
#include "support/Text.h"

namespace tovrel {

/// The stores that the settings read and write. All of them outlive the model.
struct SettingsStores {
    RulesStore& rules;
    CommandHistoryStore& history;
    CustomCommandStore& customCommands;
    PaletteSettingsStore& paletteSettings;
    NotificationSettingsStore& notifications;
    const UnstoredChange& unstoredChange;
};

/// The state behind the settings window: the contents of the stores and the providers, and the edits. Each
/// edit writes to a store and then reloads everything, so the model never differs from the stores.
///
/// An edit that cannot be stored changes nothing and shows in `unstoredChange`. An edit that needs a current
/// application or an entry does nothing without it, not even a reload. Duplicates are not detected.
class SettingsViewModel {
  public:
    /// Loads at once.
    SettingsViewModel(SettingsStores stores, SettingsProviders providers);

    [[nodiscard]] const Observable<std::optional<CurrentApplicationContext>>& currentApplication() const {
        return currentApplication_;
    }
    [[nodiscard]] const Observable<AppBehaviorRule>& defaultBehavior() const { return defaultBehavior_; }
    /// The rule of the current application; without one, the default.
    [[nodiscard]] const Observable<AppBehaviorRule>& currentBehavior() const { return currentBehavior_; }
    [[nodiscard]] const Observable<std::vector<AppBehaviorSetting>>& appBehaviorSettings() const {
        return appBehaviorSettings_;
    }
    /// The rules of every application.
    [[nodiscard]] const Observable<std::vector<MenuBlacklistRule>>& menuBlacklistRules() const {
        return menuBlacklistRules_;
    }
    /// The menu items of the current application that can still be hidden.
    [[nodiscard]] const Observable<std::vector<SettingsMenuRuleCandidate>>& menuRuleCandidates() const {
        return menuRuleCandidates_;
    }
    /// The menu commands of the current application.
    [[nodiscard]] const Observable<std::vector<SettingsMenuCommandSetting>>& menuCommandSettings() const {
        return menuCommandSettings_;
    }
    /// All custom commands, enabled or not.
    [[nodiscard]] const Observable<std::vector<CustomCommand>>& customCommands() const {
        return customCommands_;
    }
    [[nodiscard]] const Observable<std::vector<CommandHistoryEntry>>& commandHistoryEntries() const {
        return commandHistoryEntries_;
    }
    [[nodiscard]] const Observable<bool>& showCheckedStatus() const { return showCheckedStatus_; }
    /// Loaded, never edited.
    [[nodiscard]] const Observable<bool>& commandShortcutOpensSettings() const {
        return commandShortcutOpensSettings_;
    }
    /// Whether a notification reports custom commands that fail.
    [[nodiscard]] const Observable<bool>& notifiesOfCommandFailures() const {
        return notifiesOfCommandFailures_;
    }
    [[nodiscard]] const Observable<bool>& isAccessibilityTrusted() const { return isAccessibilityTrusted_; }

    /// The reason why the last change, here or elsewhere, could not be stored; absent when it could.
    [[nodiscard]] const UnstoredChange& unstoredChange() const { return unstoredChange_; }

    /// Loads everything again, in a fixed order.
    void reload();

    void setDefaultBehavior(AppBehaviorRule rule);
    void setCurrentBehavior(AppBehaviorRule rule);
    void setAppBehavior(AppBehaviorRule rule, const Text& bundleID);
    void removeAppBehavior(const Text& bundleID);

    /// Hides the candidate's item in the current application. The path is made from its title, so a ">" in an
    /// item's title splits it there too.
    void addMenuBlacklistRule(const Text& candidateID, MenuBlacklistMode mode);
    void removeMenuBlacklistRule(const Text& id);

    void saveMenuCommandAliases(const Text& settingID, const std::vector<Text>& aliases);
    void setMenuCommandFavorite(const Text& settingID, bool isFavorite);

    /// Saves the form, trimmed and otherwise unchecked, as a new command or over the one that is being
    /// edited. Whether the form applies to the current application is decided each time. Returns false and
    /// saves nothing when the edited command is gone or there is no application to apply it to.
    bool saveCustomCommand(const CustomCommandForm& form);
    void deleteCustomCommand(const Text& id);

    void clearHistory();
    void setShowCheckedStatus(bool isShown);
    void setNotifiesOfCommandFailures(bool isWanted);

  private:
    void hideMenuPath(const Text& joinedPath, MenuBlacklistMode mode);
    /// Null when there is none.
    [[nodiscard]] const SettingsMenuCommandSetting* menuCommandSetting(const Text& id) const;

    Observable<std::optional<CurrentApplicationContext>> currentApplication_;
    Observable<AppBehaviorRule> defaultBehavior_{AppBehaviorRule::enabled};
    Observable<AppBehaviorRule> currentBehavior_{AppBehaviorRule::enabled};
    Observable<std::vector<AppBehaviorSetting>> appBehaviorSettings_;
    Observable<std::vector<MenuBlacklistRule>> menuBlacklistRules_;
    Observable<std::vector<SettingsMenuRuleCandidate>> menuRuleCandidates_;
    Observable<std::vector<SettingsMenuCommandSetting>> menuCommandSettings_;
    Observable<std::vector<CustomCommand>> customCommands_;
    Observable<std::vector<CommandHistoryEntry>> commandHistoryEntries_;
    Observable<bool> showCheckedStatus_{true};
    Observable<bool> commandShortcutOpensSettings_{false};
    Observable<bool> notifiesOfCommandFailures_{true};
    Observable<bool> isAccessibilityTrusted_{false};

    RulesStore& store_;
    CommandHistoryStore& historyStore_;
    CustomCommandStore& customCommandStore_;
    PaletteSettingsStore& paletteSettingsStore_;
    NotificationSettingsStore& notificationSettingsStore_;
    const UnstoredChange& unstoredChange_;
    SettingsProviders providers_;
};

} // namespace tovrel
