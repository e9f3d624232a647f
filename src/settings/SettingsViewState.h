#pragma once

#include <memory>

#include "model/Rules.h"
#include "settings/CustomCommandForm.h"
#include "settings/SettingsTab.h"
#include "settings/SettingsViewModel.h"
#include "support/Observable.h"

namespace tovrel {

/// The state of the settings' view besides the model (the open page, the selection, the contents of the
/// forms), and the actions of its buttons. A new view starts with a new state.
class SettingsViewState {
  public:
    explicit SettingsViewState(std::shared_ptr<SettingsViewModel> viewModel);

    [[nodiscard]] SettingsViewModel& viewModel() { return *viewModel_; }
    [[nodiscard]] const SettingsViewModel& viewModel() const { return *viewModel_; }

    // The view binds to these, and writes the user's input back with `set`.
    Observable<MenuBlacklistMode> blacklistMode{MenuBlacklistMode::excludeSelfAndChildren};
    Observable<Text> selectedMenuCandidateID; ///< Empty: none.
    Observable<SettingsTab> selectedTab{SettingsTab::general};
    Observable<AppBehaviorRule> newAppBehavior{AppBehaviorRule::disabled};
    Observable<CustomCommandForm> customCommand;
    Observable<Text> menuCommandAliases; ///< Separated by commas.
    Observable<bool> menuCommandFavorite{false};

    /// Empty: none.
    [[nodiscard]] const Observable<Text>& selectedMenuCommandSettingID() const {
        return selectedMenuCommandSettingID_;
    }
    /// Fills the alias field and the favourite mark from the setting.
    void selectMenuCommandSetting(const Text& id);

    /// Saves `newAppBehavior` for the application, unless the identifier is empty.
    void addAppRule(const Text& bundleID);

    /// Hides the selected candidate and selects none.
    void hideSelectedMenuItem();

    /// Stores the alias field and the favourite mark for the selected setting.
    void saveSearchRule();

    /// Fills the form with the command, if it is still there.
    void editCustomCommand(const Text& id);
    /// Starts a new command; keeps the kind.
    void clearCustomCommandForm();
    /// Saves the command of the form and clears the form, unless nothing could be saved.
    void saveCustomCommand();
    void deleteCustomCommand(const Text& id);

  private:
    std::shared_ptr<SettingsViewModel> viewModel_;
    Observable<Text> selectedMenuCommandSettingID_;
};

} // namespace tovrel
