#pragma once

#include <algorithm>
#include <optional>

#include "model/Geometry.h"
#include "support/Text.h"

namespace tovrel {

/// Decides whether the palette closes when an application comes to the front.
struct PaletteDismissalPolicy {
    /// Only this program's own activation leaves the palette open; an unknown application counts as another
    /// one.
    [[nodiscard]] static bool shouldDismiss(const std::optional<Text>& activatedBundleIdentifier,
                                            const std::optional<Text>& ownBundleIdentifier) {
        return !activatedBundleIdentifier || activatedBundleIdentifier != ownBundleIdentifier;
    }
};

/// Decides where the palette appears.
struct PalettePresentationPolicy {
    /// The size to assume when there is no screen.
    static constexpr Size fallbackSize{1440, 900};

    /// Centres the panel and lifts it by 80, to where the eye rests, but never above the visible frame,
    /// because the search field is at the top. The left edge of a panel wider than the frame stays visible. y
    /// grows upwards, from one lower left corner to the other, as in PalettePlacement.
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
    /// The option is reserved: whatever its value, a shortcut runs the application's command that has it.
    [[nodiscard]] static PaletteShortcutRoute route(bool /*commandShortcutOpensSettings*/) {
        return PaletteShortcutRoute::commandLookup;
    }
};

} // namespace tovrel
