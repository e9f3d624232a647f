#include "views/settings/pages/HistorySettings.h"

#include <QDateTime>
#include <QLocale>
#include <algorithm>
#include <cmath>
#include <utility>

#include "qt/QtText.h"
#include "settings/SettingsText.h"

namespace tovrel {
namespace {

/// 2001-01-01 00:00:00 UTC, in seconds since 1970.
constexpr qint64 referenceDate = 978307200;
/// The most seconds to convert, because Qt counts milliseconds in 64 bits. It is far beyond any date with a
/// four-digit year.
constexpr double mostSeconds = 1e14;

QString shortDate(PointInTime time) {
    const double seconds = std::clamp(time.secondsSinceReferenceDate, -mostSeconds, mostSeconds);
    const auto date = QDateTime::fromSecsSinceEpoch(referenceDate + static_cast<qint64>(std::floor(seconds)));
    return QLocale().toString(date, QLocale::ShortFormat);
}

} // namespace

HistorySettings::HistorySettings(SettingsViewState& state, QObject* parent)
    : QObject(parent), state_(&state) {
    const SettingsViewModel& model = state.viewModel();
    subscriptions_.push_back(model.menuCommandSettings().subscribe([this] { showMenuCommands(); }));
    subscriptions_.push_back(model.commandHistoryEntries().subscribe([this] { showEntries(); }));
    subscriptions_.push_back(state.selectedMenuCommandSettingID().subscribe([this] { Q_EMIT changed(); }));
    subscriptions_.push_back(state.menuCommandAliases.subscribe([this] { Q_EMIT changed(); }));
    subscriptions_.push_back(state.menuCommandFavorite.subscribe([this] { Q_EMIT changed(); }));
    showMenuCommands();
    showEntries();
}

QString HistorySettings::selectedID() const {
    return qtString(state_->selectedMenuCommandSettingID().get());
}

QString HistorySettings::selectedTitle() const {
    return menuCommands_.titleOf(selectedID());
}

QString HistorySettings::aliases() const {
    return qtString(state_->menuCommandAliases.get());
}

void HistorySettings::setAliases(const QString& aliases) {
    state_->menuCommandAliases.set(textFrom(aliases));
}

bool HistorySettings::isFavorite() const {
    return state_->menuCommandFavorite.get();
}

void HistorySettings::setFavorite(bool isFavorite) {
    state_->menuCommandFavorite.set(isFavorite);
}

void HistorySettings::select(const QString& id) {
    state_->selectMenuCommandSetting(textFrom(id));
}

void HistorySettings::save() {
    state_->saveSearchRule();
}

void HistorySettings::clear() {
    state_->viewModel().clearHistory();
}

void HistorySettings::showMenuCommands() {
    std::vector<SettingsRow> rows;
    for (const SettingsMenuCommandSetting& setting : state_->viewModel().menuCommandSettings().get()) {
        rows.push_back({.id = qtString(setting.id), .title = qtString(setting.title)});
    }
    menuCommands_.assign(std::move(rows));
    Q_EMIT changed();
}

void HistorySettings::showEntries() {
    const SettingsViewModel& model = state_->viewModel();
    std::vector<SettingsRow> rows;
    for (const CommandHistoryEntry& entry : model.commandHistoryEntries().get()) {
        QString detail =
            entry.usageCount == 1 ? tr("Used 1 time") : tr("Used %1 times").arg(entry.usageCount);
        if (entry.lastUsedAt) {
            detail += QStringLiteral(" · ") + tr("Last used %1").arg(shortDate(*entry.lastUsedAt));
        }
        rows.push_back(
            {.id = qtString(entry.commandID),
             .title = qtString(settings_text::historyRowTitle(entry.commandID, model.customCommands().get())),
             .detail = detail,
             .isMarked = entry.isFavorite});
    }
    entries_.assign(std::move(rows));
}

} // namespace tovrel
