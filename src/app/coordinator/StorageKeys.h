#pragma once

/// The preference keys that the composition of the program chooses; the stores take them at construction.
namespace tovrel::storage_keys {
inline constexpr const char* commandHistory = "Tovrel.commandHistory";
inline constexpr const char* customCommands = "customCommands";
inline constexpr const char* paletteSettings = "paletteSettings"; ///< A prefix of keys.
inline constexpr const char* accessibilityOnboardingShown =
    "firstLaunchOnboarding.accessibilityOnboardingShown";
inline constexpr const char* commandFailureNotifications = "notifications.commandFailures";
} // namespace tovrel::storage_keys
