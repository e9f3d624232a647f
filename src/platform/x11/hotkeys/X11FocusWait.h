#pragma once

#include <vector>

#include "platform/KeyDestination.h"
#include "platform/x11/server/X11Connection.h"

namespace tovrel {

/// Waits by events until the keyboard focus of an X display is where keys are to go.
class X11FocusWait {
  public:
    explicit X11FocusWait(X11Connection& connection) : connection_(connection) {}

    /// From now on changes that can matter for the destination come as events: of the focus, and of the root
    /// window's properties.
    void begin(const KeyDestination& destination);
    /// Nothing comes any more. A wait that has not begun ends as well.
    void end();

    [[nodiscard]] bool isWaiting() const { return isWaiting_; }

    /// Whether keys go where they are to go. Asks the server, a few round trips.
    ///
    /// To the destination: the focus is on the window or on one inside it. Away from it: the focus is on the
    /// window that the window manager says is active, or on one inside that. On the way there the focus rests
    /// on the root, on nothing, on the frame or on some window of the manager's own, and keys would be lost;
    /// where no manager says what is active, a window that has nothing to do with the destination counts.
    [[nodiscard]] bool isReached();

  private:
    [[nodiscard]] xcb_window_t focusedWindow();
    /// The window and those around it, without the root.
    [[nodiscard]] std::vector<xcb_window_t> withAncestors(xcb_window_t window);
    void selectEvents(bool isWanted);

    X11Connection& connection_;
    xcb_window_t destination_ = 0; ///< 0: it does not matter.
    bool shouldHaveFocus_ = false;
    bool isWaiting_ = false;
};

} // namespace tovrel
