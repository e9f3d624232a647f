#pragma once

#include <memory>

#include "platform/RunningApplication.h"

namespace tovrel {

/// The desktop as far as it is made of applications.
class Workspace {
  public:
    virtual ~Workspace() = default;

    /// The application that has the user's attention; null when there is none or it cannot be known.
    [[nodiscard]] virtual std::shared_ptr<RunningApplication> frontApplication() = 0;

    /// Asks the desktop to bring the application to the front, without waiting for it to happen. False when
    /// it has no window to bring there or the request could not be made.
    virtual bool activate(const RunningApplication& application) = 0;
};

} // namespace tovrel
