#include "views/settings/SettingsViewAdapter.h"

#include <utility>

#include "views/settings/pages/SettingsLabels.h"

namespace tovrel {

SettingsViewAdapter::SettingsViewAdapter(SettingsViewState& state, RecorderAdapter& recorder,
                                         const Surroundings& surroundings, QObject* parent)
    : QObject(parent), state_(&state), general_(state, recorder, surroundings.openURL),
      appRules_(state, surroundings.workspace, surroundings.textServices), menuFilter_(state),
      commands_(state), history_(state),
      tabSelection_(state.selectedTab.subscribe([this] { Q_EMIT selectedTabChanged(); })),
      unstoredChange_(
          state.viewModel().unstoredChange().subscribe([this] { Q_EMIT unstoredChangeChanged(); })) {
    std::vector<SettingsRow> tabs;
    for (const SettingsTab tab : allSettingsTabs) {
        const QString label = settings_labels::label(tab);
        tabs.push_back(
            {.id = label, .title = label, .symbol = QString::fromLatin1(settings_labels::symbol(tab))});
    }
    tabs_.assign(std::move(tabs));
}

int SettingsViewAdapter::selectedTab() const {
    return static_cast<int>(state_->selectedTab.get());
}

QString SettingsViewAdapter::tabLabel() const {
    return settings_labels::label(state_->selectedTab.get());
}

QString SettingsViewAdapter::tabSubtitle() const {
    return settings_labels::subtitle(state_->selectedTab.get());
}

QString SettingsViewAdapter::tabBadge() const {
    return settings_labels::badge(state_->selectedTab.get());
}

QString SettingsViewAdapter::unstoredChange() const {
    const auto& failure = state_->viewModel().unstoredChange().get();
    return failure ? settings_labels::sentence(*failure) : QString();
}

void SettingsViewAdapter::selectTab(int index) {
    if (const auto tab = settings_labels::choiceAt(allSettingsTabs, index)) {
        state_->selectedTab.set(*tab);
    }
}

void SettingsViewAdapter::refresh() {
    state_->viewModel().reload();
    general_.recorder()->retry();
}

} // namespace tovrel
