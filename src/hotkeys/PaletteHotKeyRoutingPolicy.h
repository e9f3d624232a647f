#pragma once

#include <optional>

#include "model/Rules.h"
#include "support/Text.h"

namespace tovrel {

/// Decides whether the palette or the application in front gets the global shortcut.
struct PaletteHotKeyRoutingPolicy {
    /// Only a known application with the behaviour `disabled` gets the shortcut itself, and only while menus
    /// can be read at all. `behavior` is the target's effective one.
    [[nodiscard]] static bool shouldForwardToggleShortcut(bool isAccessibilityTrusted,
                                                          const std::optional<Text>& targetBundleIdentifier,
                                                          AppBehaviorRule behavior) {
        return isAccessibilityTrusted && targetBundleIdentifier && behavior == AppBehaviorRule::disabled;
    }
};

} // namespace tovrel
