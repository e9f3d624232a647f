#include "views/settings/SettingsViewAdapter.h"

#include <utility>

#include "views/settings/pages/SettingsLabels.h"

namespace tovrel {

SettingsViewAdapter::SettingsViewAdapter(SettingsViewState& state, RecorderAdapter& recorder,
                                         const Surroundings& surroundings, QObject* parent)
    : QObject(parent), state_(&state), general_(state, recorder, surroundings.openURL),
      apps_(state, surroundings.workspace, surroundings.textServices), menuFilter_(state), commands_(state),
      history_(state), pageSelection_(state.selectedTab.subscribe([this] { Q_EMIT selectedPageChanged(); })),
      unstoredChange_(
          state.viewModel().unstoredChange().subscribe([this] { Q_EMIT unstoredChangeChanged(); })) {
    std::vector<SettingsRow> rows;
    for (const SettingsPageEntry& page : settingsPages()) {
        rows.push_back({.id = QString::fromLatin1(page.file),
                        .title = translatedPageText(page.title),
                        .symbol = QString::fromLatin1(page.symbol)});
    }
    pages_.assign(std::move(rows));
}

int SettingsViewAdapter::selectedPage() const {
    return static_cast<int>(state_->selectedTab.get());
}

QString SettingsViewAdapter::pageFile() const {
    return QString::fromLatin1(page().file);
}

QString SettingsViewAdapter::pageTitle() const {
    return translatedPageText(page().title);
}

QString SettingsViewAdapter::pageSubtitle() const {
    return translatedPageText(page().subtitle);
}

QString SettingsViewAdapter::pageBadge() const {
    return translatedPageText(page().badge);
}

QString SettingsViewAdapter::unstoredChange() const {
    const auto& failure = state_->viewModel().unstoredChange().get();
    return failure ? settings_labels::sentence(*failure) : QString();
}

void SettingsViewAdapter::selectPage(int index) {
    const auto pages = settingsPages();
    if (index >= 0 && static_cast<std::size_t>(index) < pages.size()) {
        state_->selectedTab.set(pages[static_cast<std::size_t>(index)].tab);
    }
}

void SettingsViewAdapter::refresh() {
    state_->viewModel().reload();
    general_.recorder()->retry();
}

} // namespace tovrel
