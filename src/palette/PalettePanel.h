#pragma once

#include <functional>
#include <optional>

#include "model/Geometry.h"
#include "model/KeyEvent.h"
#include "support/Text.h"

namespace tovrel {

/// Where the panel goes, said so that a display whose screens have no common coordinates can follow.
struct PalettePlacement {
    std::optional<Text> screen; ///< A Screen's identifier; absent when no screen is known.
    /// From the lower left corner of the screen's visible frame to that of the panel.
    Point offset;

    friend bool operator==(const PalettePlacement&, const PalettePlacement&) = default;
};

/// The window that shows the palette: borderless, above other windows, on every workspace. Made hidden, and
/// kept when closed.
class PalettePanel {
  public:
    /// Whether the event was used up; others go on to the search field.
    using KeyHandler = std::function<bool(const KeyEvent&)>;

    virtual ~PalettePanel() = default;

    [[nodiscard]] virtual bool isVisible() const = 0;
    [[nodiscard]] virtual Size frameSize() const = 0;
    /// Where the window is from now on, shown or not. A display that places windows itself may do otherwise.
    /// Should the screen be gone, another is taken.
    virtual void place(const PalettePlacement& placement) = 0;

    /// Shows the window above the others.
    virtual void show() = 0;
    /// Asks for the keyboard focus, which arrives a little later. For a window that is shown.
    virtual void makeKey() = 0;
    /// Hides the window; the focus goes back to where it was. Without effect on one that is hidden.
    virtual void close() = 0;

    /// Sees every key-down before the search field does; an empty one ends that. The handler may replace
    /// itself.
    virtual void setKeyHandler(KeyHandler handler) = 0;
    /// Called once when the window, which stays shown, has lost the keyboard focus for good: not for the
    /// moment in which another program holds the keyboard, nor when it is closed. An empty one ends that.
    virtual void setResignKeyHandler(std::function<void()> handler) = 0;
};

} // namespace tovrel
