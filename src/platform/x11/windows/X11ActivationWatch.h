#pragma once

#include <functional>

#include "platform/posix/EventSource.h"
#include "platform/x11/server/X11Connection.h"

namespace tovrel {

/// Reports when another window of an X display becomes active, on a connection of its own.
class X11ActivationWatch : public EventSource {
  public:
    using Observer = std::function<void(xcb_window_t active)>;

    /// Connects to `display`, or to $DISPLAY when null. Does not report the window that is active now.
    X11ActivationWatch(Observer observer, const char* display);

    [[nodiscard]] int fileDescriptor() const override { return connection_.fileDescriptor(); }

    /// Does not report that no window is active, which desktops say for a moment while the focus moves, nor
    /// the same window again afterwards.
    void dispatch() override;

  private:
    [[nodiscard]] xcb_window_t activeWindow();

    X11Connection connection_;
    xcb_atom_t activeWindowProperty_;
    Observer observer_;
    xcb_window_t active_ = 0;
};

} // namespace tovrel
