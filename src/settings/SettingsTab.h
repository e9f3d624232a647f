#pragma once

namespace tovrel {

/// The pages of the settings window, in the order of its sidebar.
enum class SettingsTab { general, appRules, menuRules, commands, search };

} // namespace tovrel
