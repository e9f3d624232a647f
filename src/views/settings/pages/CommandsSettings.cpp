#include "views/settings/pages/CommandsSettings.h"

#include <utility>

#include "qt/QtText.h"
#include "views/settings/pages/SettingsLabels.h"

namespace tovrel {

CommandsSettings::CommandsSettings(SettingsViewState& state, QObject* parent)
    : QObject(parent), state_(&state) {
    const SettingsViewModel& model = state.viewModel();
    subscriptions_.push_back(state.customCommand.subscribe([this] { Q_EMIT changed(); }));
    subscriptions_.push_back(model.currentApplication().subscribe([this] { Q_EMIT changed(); }));
    subscriptions_.push_back(model.customCommands().subscribe([this] { showCommands(); }));
    showCommands();
}

QString CommandsSettings::title() const {
    return qtString(form().title);
}

void CommandsSettings::setTitle(const QString& title) {
    change([&](CustomCommandForm& form) { form.title = textFrom(title); });
}

QStringList CommandsSettings::kindLabels() const {
    return settings_labels::labels(allCustomCommandKinds);
}

void CommandsSettings::setKind(int index) {
    if (const auto kind = settings_labels::choiceAt(allCustomCommandKinds, index)) {
        change([&](CustomCommandForm& form) { form.kind = *kind; });
    }
}

QString CommandsSettings::payload() const {
    return qtString(form().payload);
}

void CommandsSettings::setPayload(const QString& payload) {
    change([&](CustomCommandForm& form) { form.payload = textFrom(payload); });
}

QString CommandsSettings::payloadPlaceholder() const {
    return settings_labels::payloadPlaceholder(form().kind);
}

QString CommandsSettings::aliases() const {
    return qtString(form().aliases);
}

void CommandsSettings::setAliases(const QString& aliases) {
    change([&](CustomCommandForm& form) { form.aliases = textFrom(aliases); });
}

void CommandsSettings::setUsesCurrentApp(bool isUsed) {
    change([&](CustomCommandForm& form) { form.usesCurrentApp = isUsed; });
}

QString CommandsSettings::usesCurrentAppLabel() const {
    const auto& application = state_->viewModel().currentApplication().get();
    return application ? tr("Only show in %1").arg(qtString(application->name))
                       : tr("Only show for current app");
}

void CommandsSettings::setEnabled(bool isEnabled) {
    change([&](CustomCommandForm& form) { form.isEnabled = isEnabled; });
}

void CommandsSettings::save() {
    state_->saveCustomCommand();
}

void CommandsSettings::cancel() {
    state_->clearCustomCommandForm();
}

void CommandsSettings::edit(const QString& id) {
    state_->editCustomCommand(textFrom(id));
}

void CommandsSettings::remove(const QString& id) {
    state_->deleteCustomCommand(textFrom(id));
}

void CommandsSettings::change(const std::function<void(CustomCommandForm&)>& edit) {
    CustomCommandForm changed = form();
    edit(changed);
    state_->customCommand.set(std::move(changed));
}

void CommandsSettings::showCommands() {
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
