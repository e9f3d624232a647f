#pragma once

#include <algorithm>
#include <optional>

#include "model/Geometry.h"
#include "support/Text.h"

namespace tovrel {

/// Decides whether the palette goes away when an application comes to the front.
struct PaletteDismissalPolicy {
    /// Only this program's own activation leaves the palette open; an unknown application is another one.
    [[nodiscard]] static bool shouldDismiss(const std::optional<Text>& activatedBundleIdentifier,
                                            const std::optional<Text>& ownBundleIdentifier) {
        return !activatedBundleIdentifier || activatedBundleIdentifier != ownBundleIdentifier;
    }
};

/// Decides where the palette goes.
struct PalettePresentationPolicy {
    /// Taken when there is no screen.
    static constexpr Size fallbackSize{1440, 900};

    /// Centred, and 80 above the middle, where the eye is, but never above the visible frame: the search
    /// field is at the top. Of a panel wider than the frame the left is kept in sight. y grows upwards, and
    /// both lower left corners are meant, as in PalettePlacement.
    [[nodiscard]] static Point panelOffset(Size visibleFrame, Size panel) {
        constexpr double aboveCentre = 80;
        const double x = visibleFrame.width / 2 - panel.width / 2;
        const double y = visibleFrame.height / 2 + aboveCentre - panel.height / 2;
        const double highest = visibleFrame.height - panel.height;
        return {std::max(x, 0.0), std::min(y, highest)};
    }
};

/// What a shortcut typed into the palette does.
enum class PaletteShortcutRoute { commandLookup };

struct PaletteShortcutRoutingPolicy {
    /// The option is reserved: whatever it says, a shortcut runs the application's command that carries it.
    [[nodiscard]] static PaletteShortcutRoute route(bool /*commandShortcutOpensSettings*/) {
        return PaletteShortcutRoute::commandLookup;
    }
};

} // namespace tovrel
