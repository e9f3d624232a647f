#pragma once

#include "support/Text.h"

namespace tovrel {

/// Tells the user what no window of this program is there to tell.
class UserNotifications {
  public:
    virtual ~UserNotifications() = default;

    /// Has the desktop show a short message over whatever is on the screen. Both texts are plain: nothing in
    /// them is markup. Returns at once; on a desktop that shows no notifications nothing happens.
    virtual void show(const Text& title, const Text& body) = 0;
};

} // namespace tovrel
