#include "views/settings/pages/MenuFilterSettings.h"

#include <utility>

#include "qt/QtText.h"
#include "views/settings/pages/SettingsLabels.h"

namespace tovrel {

MenuFilterSettings::MenuFilterSettings(SettingsViewState& state, QObject* parent)
    : QObject(parent), state_(&state) {
    modes_.assign(settings_labels::choices(allMenuBlacklistModes));
    const SettingsViewModel& model = state.viewModel();
    subscriptions_.push_back(model.menuRuleCandidates().subscribe([this] { showCandidates(); }));
    subscriptions_.push_back(model.menuBlacklistRules().subscribe([this] { showRules(); }));
    subscriptions_.push_back(state.selectedMenuCandidateID.subscribe([this] { Q_EMIT changed(); }));
    subscriptions_.push_back(state.blacklistMode.subscribe([this] { Q_EMIT changed(); }));
    showCandidates();
    showRules();
}

QString MenuFilterSettings::selectedID() const {
    return qtString(state_->selectedMenuCandidateID.get());
}

QString MenuFilterSettings::selectedTitle() const {
    return candidates_.titleOf(selectedID());
}

QString MenuFilterSettings::modeID() const {
    return QString::fromLatin1(rawValue(state_->blacklistMode.get()));
}

QString MenuFilterSettings::modeLabel() const {
    return settings_labels::label(state_->blacklistMode.get());
}

void MenuFilterSettings::select(const QString& id) {
    state_->selectedMenuCandidateID.set(textFrom(id));
}

void MenuFilterSettings::setMode(const QString& id) {
    if (const auto mode = settings_labels::choiceNamed(allMenuBlacklistModes, id)) {
        state_->blacklistMode.set(*mode);
    }
}

void MenuFilterSettings::hideSelected() {
    state_->hideSelectedMenuItem();
}

void MenuFilterSettings::removeRule(const QString& id) {
    state_->viewModel().removeMenuBlacklistRule(textFrom(id));
}

void MenuFilterSettings::showCandidates() {
    std::vector<SettingsRow> rows;
    for (const SettingsMenuRuleCandidate& candidate : state_->viewModel().menuRuleCandidates().get()) {
        rows.push_back({.id = qtString(candidate.id), .title = qtString(candidate.title)});
    }
    candidates_.assign(std::move(rows));
    Q_EMIT changed();
}

void MenuFilterSettings::showRules() {
    std::vector<SettingsRow> rows;
    for (const MenuBlacklistRule& rule : state_->viewModel().menuBlacklistRules().get()) {
        rows.push_back({.id = qtString(rule.id),
                        .title = qtString(joined(rule.targetPath, " > ")),
                        .detail = settings_labels::scope(rule.appScope) + QStringLiteral(" · ") +
                                  settings_labels::label(rule.mode)});
    }
    rules_.assign(std::move(rows));
}

} // namespace tovrel
