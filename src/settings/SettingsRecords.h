#pragma once

#include <vector>

#include "support/Text.h"

namespace tovrel {

/// The application that the settings treat as the one in front.
struct CurrentApplicationContext {
    Text name; ///< Shown to the user.
    Text bundleID;

    friend bool operator==(const CurrentApplicationContext&, const CurrentApplicationContext&) = default;
};

/// A menu item that can be hidden.
struct SettingsMenuRuleCandidate {
    Text id;    ///< The path joined with `menuPathSeparator`.
    Text title; ///< The path joined with " > ".
    std::vector<Text> targetPath;

    friend bool operator==(const SettingsMenuRuleCandidate&, const SettingsMenuRuleCandidate&) = default;
};

/// A menu command whose search settings can be edited.
struct SettingsMenuCommandSetting {
    Text id;    ///< The path joined with `menuPathSeparator`.
    Text title; ///< The path joined with " > ".
    std::vector<Text> targetPath;
    std::vector<Text> aliases;
    bool isFavorite = false;

    friend bool operator==(const SettingsMenuCommandSetting&, const SettingsMenuCommandSetting&) = default;
};

} // namespace tovrel
