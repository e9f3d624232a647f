#include "menus/AccessibilityPermissionService.h"

#include "support/UUID.h"

namespace tovrel {

Command AccessibilityPermissionService::makeAccessibilityPermissionCommand() {
    const Text title = "Open Accessibility Settings";
    const std::vector<Text> words{"permission", "accessibility", "privacy"};
    return {.id = "custom.accessibility",
            .source = CommandSource::custom,
            .appScope = std::nullopt,
            .title = title,
            .subtitle = "Tovrel needs Accessibility permission",
            .menuPath = {},
            .shortcut = std::nullopt,
            .aliases = words,
            .searchTokens = words,
            .isEnabled = true,
            .isChecked = false,
            .rankSignals = {},
            .action = CustomCommand{
                .id = makeUUID(),
                .title = title,
                .kind = CustomCommandKind::open,
                .payload = "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility",
                .appScope = std::nullopt,
                .aliases = words,
                .isEnabled = true}};
}

} // namespace tovrel
