#pragma once

#include <optional>

#include "model/Rules.h"
#include "support/Text.h"

namespace tovrel {

/// Decides whether the global shortcut is ours in the application in front.
struct PaletteHotKeyRoutingPolicy {
    /// Only an application that is known and whose behaviour is `disabled` gets the shortcut itself, and only
    /// while menus can be read at all. `behavior` is the effective one of the target.
    [[nodiscard]] static bool shouldForwardToggleShortcut(bool isAccessibilityTrusted,
                                                          const std::optional<Text>& targetBundleIdentifier,
                                                          AppBehaviorRule behavior) {
        return isAccessibilityTrusted && targetBundleIdentifier && behavior == AppBehaviorRule::disabled;
    }
};

} // namespace tovrel
