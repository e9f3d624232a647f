#include "views/settings/SettingsPages.h"

#include <QCoreApplication>
#include <array>

namespace tovrel {
namespace {

constexpr std::array pages{
    SettingsPageEntry{.tab = SettingsTab::general,
                      .file = "GeneralPage.qml",
                      .symbol = "gearshape.fill",
                      .title = QT_TRANSLATE_NOOP("SettingsPages", "General"),
                      .subtitle = QT_TRANSLATE_NOOP("SettingsPages", "Palette shortcuts and display"),
                      .badge = QT_TRANSLATE_NOOP("SettingsPages", "Palette")},
    SettingsPageEntry{.tab = SettingsTab::appRules,
                      .file = "AppsPage.qml",
                      .symbol = "macwindow",
                      .title = QT_TRANSLATE_NOOP("SettingsPages", "Apps"),
                      .subtitle = QT_TRANSLATE_NOOP("SettingsPages", "Per-app behavior rules"),
                      .badge = QT_TRANSLATE_NOOP("SettingsPages", "Rules")},
    SettingsPageEntry{.tab = SettingsTab::menuRules,
                      .file = "MenuFilterPage.qml",
                      .symbol = "line.3.horizontal.decrease.circle.fill",
                      .title = QT_TRANSLATE_NOOP("SettingsPages", "Menu Filter"),
                      .subtitle = QT_TRANSLATE_NOOP("SettingsPages", "Hide noisy menu commands"),
                      .badge = QT_TRANSLATE_NOOP("SettingsPages", "Clean Up")},
    SettingsPageEntry{.tab = SettingsTab::commands,
                      .file = "CommandsPage.qml",
                      .symbol = "terminal.fill",
                      .title = QT_TRANSLATE_NOOP("SettingsPages", "Commands"),
                      .subtitle = QT_TRANSLATE_NOOP("SettingsPages", "Local custom actions"),
                      .badge = QT_TRANSLATE_NOOP("SettingsPages", "Local")},
    SettingsPageEntry{.tab = SettingsTab::search,
                      .file = "HistoryPage.qml",
                      .symbol = "clock.arrow.circlepath",
                      .title = QT_TRANSLATE_NOOP("SettingsPages", "History"),
                      .subtitle = QT_TRANSLATE_NOOP("SettingsPages", "Usage and ranking"),
                      .badge = QT_TRANSLATE_NOOP("SettingsPages", "Local")},
};

consteval bool isInOrderOfTabs() {
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (pages.at(i).tab != static_cast<SettingsTab>(i)) {
            return false;
        }
    }
    return true;
}
static_assert(isInOrderOfTabs(), "a row for each SettingsTab, in its order");

} // namespace

std::span<const SettingsPageEntry> settingsPages() {
    return pages;
}

const SettingsPageEntry& settingsPage(SettingsTab tab) {
    return pages.at(static_cast<std::size_t>(tab));
}

QString translatedPageText(const char* text) {
    return QCoreApplication::translate("SettingsPages", text);
}

} // namespace tovrel
