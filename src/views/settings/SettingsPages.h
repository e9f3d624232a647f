#pragma once

#include <QString>
#include <span>

#include "settings/SettingsTab.h"

namespace tovrel {

/// A page of the settings, and how the sidebar and the header above the page present it. The texts are
/// untranslated.
struct SettingsPageEntry {
    SettingsTab tab;
    const char* file;   ///< Of the module Tovrel.Views. Its view is a SettingsPage.
    const char* symbol; ///< In the sidebar.
    const char* title;
    const char* subtitle;
    const char* badge;
};

/// All of them, in the order of the sidebar, which is that of SettingsTab.
std::span<const SettingsPageEntry> settingsPages();

const SettingsPageEntry& settingsPage(SettingsTab tab);

/// A text of an entry in the user's language.
QString translatedPageText(const char* text);

} // namespace tovrel
