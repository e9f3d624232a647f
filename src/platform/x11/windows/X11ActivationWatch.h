#pragma once

#include <functional>

#include "platform/posix/EventSource.h"
#include "platform/x11/server/X11Connection.h"

namespace tovrel {

/// Tells when another window of an X display becomes the active one, on a connection of its own.
class X11ActivationWatch : public EventSource {
  public:
    using Observer = std::function<void(xcb_window_t active)>;

    /// Connects to `display`, or to $DISPLAY when null. The window that is active now is not told.
    X11ActivationWatch(Observer observer, const char* display);

    [[nodiscard]] int fileDescriptor() const override { return connection_.fileDescriptor(); }

    /// That no window is active, as desktops say for a moment while the focus moves, is not told, nor is the
    /// same window once more after it.
    void dispatch() override;

  private:
    [[nodiscard]] xcb_window_t activeWindow();

    X11Connection connection_;
    xcb_atom_t activeWindowProperty_;
    Observer observer_;
    xcb_window_t active_ = 0;
};

} // namespace tovrel
