#include "views/settings/pages/CustomCommandsSettings.h"

#include <utility>

#include "qt/QtText.h"
#include "views/settings/pages/SettingsLabels.h"

namespace tovrel {

CustomCommandsSettings::CustomCommandsSettings(SettingsViewState& state, QObject* parent)
    : QObject(parent), state_(&state) {
    const SettingsViewModel& model = state.viewModel();
    subscriptions_.push_back(state.customCommand.subscribe([this] { Q_EMIT changed(); }));
    subscriptions_.push_back(model.currentApplication().subscribe([this] { Q_EMIT changed(); }));
    subscriptions_.push_back(model.customCommands().subscribe([this] { showCommands(); }));
    showCommands();
}

QString CustomCommandsSettings::title() const {
    return qtString(form().title);
}

void CustomCommandsSettings::setTitle(const QString& title) {
    change([&](CustomCommandForm& form) { form.title = textFrom(title); });
}

QStringList CustomCommandsSettings::kindLabels() const {
    return settings_labels::labels(allCustomCommandKinds);
}

void CustomCommandsSettings::setKind(int index) {
    if (const auto kind = settings_labels::choiceAt(allCustomCommandKinds, index)) {
        change([&](CustomCommandForm& form) { form.kind = *kind; });
    }
}

QString CustomCommandsSettings::payload() const {
    return qtString(form().payload);
}

void CustomCommandsSettings::setPayload(const QString& payload) {
    change([&](CustomCommandForm& form) { form.payload = textFrom(payload); });
}

QString CustomCommandsSettings::payloadPlaceholder() const {
    return settings_labels::payloadPlaceholder(form().kind);
}

QString CustomCommandsSettings::aliases() const {
    return qtString(form().aliases);
}

void CustomCommandsSettings::setAliases(const QString& aliases) {
    change([&](CustomCommandForm& form) { form.aliases = textFrom(aliases); });
}

void CustomCommandsSettings::setUsesCurrentApp(bool isUsed) {
    change([&](CustomCommandForm& form) { form.usesCurrentApp = isUsed; });
}

QString CustomCommandsSettings::usesCurrentAppLabel() const {
    const auto& application = state_->viewModel().currentApplication().get();
    return application ? tr("Only show in %1").arg(qtString(application->name))
                       : tr("Only show for current app");
}

void CustomCommandsSettings::setEnabled(bool isEnabled) {
    change([&](CustomCommandForm& form) { form.isEnabled = isEnabled; });
}

void CustomCommandsSettings::save() {
    state_->saveCustomCommand();
}

void CustomCommandsSettings::cancel() {
    state_->clearCustomCommandForm();
}

void CustomCommandsSettings::edit(const QString& id) {
    state_->editCustomCommand(textFrom(id));
}

void CustomCommandsSettings::remove(const QString& id) {
    state_->deleteCustomCommand(textFrom(id));
}

void CustomCommandsSettings::change(const std::function<void(CustomCommandForm&)>& edit) {
    CustomCommandForm changed = form();
    edit(changed);
    state_->customCommand.set(std::move(changed));
}

void CustomCommandsSettings::showCommands() {
    std::vector<SettingsRow> rows;
    for (const CustomCommand& command : state_->viewModel().customCommands().get()) {
        rows.push_back({.id = qtString(command.id),
                        .title = qtString(command.title),
                        .detail = settings_labels::label(command.kind) + QStringLiteral(" · ") +
                                  settings_labels::scope(command.appScope),
                        .symbol = QString::fromLatin1(settings_labels::symbol(command.kind))});
    }
    commands_.assign(std::move(rows));
}

} // namespace tovrel
