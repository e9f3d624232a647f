#pragma once

#include "support/Text.h"

namespace tovrel {

/// Tells the user something when no window of this program is open.
class UserNotifications {
  public:
    virtual ~UserNotifications() = default;

    /// Has the desktop show a short message over whatever is on the screen. Both texts are plain, without
    /// markup. Returns at once; has no effect on a desktop that shows no notifications.
    virtual void show(const Text& title, const Text& body) = 0;
};

} // namespace tovrel
