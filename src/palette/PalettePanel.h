#pragma once

#include <functional>
#include <optional>

#include "model/Geometry.h"
#include "model/KeyEvent.h"
#include "support/Text.h"

namespace tovrel {

/// The place of the panel, in a form that suits displays whose screens have no common coordinates.
struct PalettePlacement {
    std::optional<Text> screen; ///< A Screen's identifier; absent when no screen is known.
    /// The way from the lower left corner of the screen's visible frame to that of the panel.
    Point offset;

    friend bool operator==(const PalettePlacement&, const PalettePlacement&) = default;
};

/// The window that shows the palette: borderless, above other windows, on every workspace. Made hidden, and
/// kept when closed.
class PalettePanel {
  public:
    /// Returns whether the event was used up; other events go on to the search field.
    using KeyHandler = std::function<bool(const KeyEvent&)>;

    virtual ~PalettePanel() = default;

    [[nodiscard]] virtual bool isVisible() const = 0;
    [[nodiscard]] virtual Size frameSize() const = 0;
    /// Moves the panel, shown or not. A display that places windows itself may ignore the place. If the
    /// screen is gone, another is used.
    virtual void place(const PalettePlacement& placement) = 0;

    /// Shows the window above the others.
    virtual void show() = 0;
    /// Asks for the keyboard focus, which arrives a little later. The window must be shown.
    virtual void makeKey() = 0;
    /// Hides the window; the focus goes back to where it was. Without effect on one that is hidden.
    virtual void close() = 0;

    /// Sets the handler that sees every key-down before the search field does; an empty handler removes it.
    /// The handler may replace itself.
    virtual void setKeyHandler(KeyHandler handler) = 0;
    /// Sets the handler that is called once when the window, which stays shown, has lost the keyboard focus
    /// for good; an empty handler removes it. Neither closing the window counts nor a moment in which another
    /// program holds the keyboard.
    virtual void setResignKeyHandler(std::function<void()> handler) = 0;
};

} // namespace tovrel
