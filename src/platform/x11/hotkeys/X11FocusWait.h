#pragma once

#include <vector>

#include "platform/KeyDestination.h"
#include "platform/x11/server/X11Connection.h"

namespace tovrel {

/// Waits with events until the keyboard focus of an X display is where keys must go.
class X11FocusWait {
  public:
    explicit X11FocusWait(X11Connection& connection) : connection_(connection) {}

    /// Selects the events that can matter for the destination: changes of the focus and of the root window's
    /// properties.
    void begin(const KeyDestination& destination);
    /// Deselects these events; may be called without a wait.
    void end();

    [[nodiscard]] bool isWaiting() const { return isWaiting_; }

    /// Whether keys go where they must. Asks the server, which takes a few round trips.
    ///
    /// If keys must go to the destination, the focus must be on it or a window inside. If they must go
    /// elsewhere, the focus must be on the window that the window manager calls active, or on a window inside
    /// that. On the way there the focus rests on the root, on nothing, on the frame or on one of the
    /// manager's own windows, where keys would be lost. If no manager names an active window, any window that
    /// is unrelated to the destination counts.
    [[nodiscard]] bool isReached();

  private:
    [[nodiscard]] xcb_window_t focusedWindow();
    /// The window and its ancestors, without the root.
    [[nodiscard]] std::vector<xcb_window_t> withAncestors(xcb_window_t window);
    void selectEvents(bool isWanted);

    X11Connection& connection_;
    xcb_window_t destination_ = 0; ///< 0 when it does not matter.
    bool shouldHaveFocus_ = false;
    bool isWaiting_ = false;
};

} // namespace tovrel
