#pragma once

#include <array>

namespace tovrel {

/// The pages of the settings window, in the order of its sidebar.
enum class SettingsTab { general, appRules, menuRules, commands, search };

inline constexpr std::array allSettingsTabs{SettingsTab::general, SettingsTab::appRules,
                                            SettingsTab::menuRules, SettingsTab::commands,
                                            SettingsTab::search};

} // namespace tovrel
