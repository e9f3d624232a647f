#pragma once

#include <functional>

#include "model/Geometry.h"
#include "model/KeyEvent.h"

namespace tovrel {

/// The window that shows the palette: borderless, above other windows, on every workspace. Made hidden, and
/// kept when closed.
class PalettePanel {
  public:
    /// Whether the event was used up; others go on to the search field.
    using KeyHandler = std::function<bool(const KeyEvent&)>;

    virtual ~PalettePanel() = default;

    [[nodiscard]] virtual bool isVisible() const = 0;
    [[nodiscard]] virtual Size frameSize() const = 0;
    virtual void setFrameOrigin(Point origin) = 0;

    /// Shows the window, above the others and with the keyboard focus.
    virtual void showAndMakeKey() = 0;
    /// Hides the window; the focus goes back to where it was.
    virtual void close() = 0;

    /// Sees every key-down before the search field does; an empty one ends that.
    virtual void setKeyHandler(KeyHandler handler) = 0;
    /// Called when the window has lost the keyboard focus for good: not for the moment in which another
    /// program holds the keyboard.
    virtual void setResignKeyHandler(std::function<void()> handler) = 0;
};

} // namespace tovrel
