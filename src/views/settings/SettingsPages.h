#pragma once

#include <QString>
#include <span>

#include "settings/SettingsTab.h"

namespace tovrel {

/// A page of the settings, and how the sidebar and the header above the page present it. The texts are
/// untranslated.
struct SettingsPageEntry {
    SettingsTab tab;
    const char* file;   ///< A file of the module Tovrel.Views, whose view is a SettingsPage.
    const char* symbol; ///< The symbol in the sidebar.
    const char* title;
    const char* subtitle;
    const char* badge;
};

/// All pages, in the order of the sidebar, which is the order of SettingsTab.
std::span<const SettingsPageEntry> settingsPages();

const SettingsPageEntry& settingsPage(SettingsTab tab);

/// A text of an entry in the user's language.
QString translatedPageText(const char* text);

} // namespace tovrel
