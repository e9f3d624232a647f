#include "settings/SettingsViewState.h"

#include <algorithm>
#include <utility>

#include "settings/SettingsText.h"

namespace tovrel {

SettingsViewState::SettingsViewState(std::shared_ptr<SettingsViewModel> viewModel)
    : viewModel_(std::move(viewModel)) {}

void SettingsViewState::selectMenuCommandSetting(const Text& id) {
    selectedMenuCommandSettingID_.set(id);
    for (const SettingsMenuCommandSetting& setting : viewModel_->menuCommandSettings().get()) {
        if (setting.id == id) {
            menuCommandAliases.set(settings_text::aliasField(setting.aliases));
            menuCommandFavorite.set(setting.isFavorite);
            return;
        }
    }
}

void SettingsViewState::addAppRule(const Text& bundleID) {
    if (!bundleID.empty()) {
        viewModel_->setAppBehavior(newAppBehavior.get(), bundleID);
    }
}

void SettingsViewState::hideSelectedMenuItem() {
    viewModel_->addMenuBlacklistRule(selectedMenuCandidateID.get(), blacklistMode.get());
    selectedMenuCandidateID.set({});
}

void SettingsViewState::saveSearchRule() {
    const Text id = selectedMenuCommandSettingID_.get();
    viewModel_->saveMenuCommandAliases(id, settings_text::aliasesFrom(menuCommandAliases.get()));
    viewModel_->setMenuCommandFavorite(id, menuCommandFavorite.get());
}

void SettingsViewState::editCustomCommand(const Text& id) {
    for (const CustomCommand& command : viewModel_->customCommands().get()) {
        if (command.id == id) {
            customCommand.set({.title = command.title,
                               .kind = command.kind,
                               .payload = command.payload,
                               .aliases = settings_text::aliasField(command.aliases),
                               .usesCurrentApp = command.appScope.has_value(),
                               .isEnabled = command.isEnabled,
                               .editingID = command.id});
            return;
        }
    }
}

void SettingsViewState::clearCustomCommandForm() {
    CustomCommandForm form;
    form.kind = customCommand.get().kind;
    customCommand.set(std::move(form));
}

void SettingsViewState::saveCustomCommand() {
    if (viewModel_->saveCustomCommand(customCommand.get())) {
        clearCustomCommandForm();
    }
}

void SettingsViewState::deleteCustomCommand(const Text& id) {
    if (customCommand.get().editingID == id) {
        clearCustomCommandForm();
    }
    viewModel_->deleteCustomCommand(id);
}

} // namespace tovrel
