#pragma once

#include <memory>

#include "hotkeys/FrontmostAppResolver.h"
#include "platform/Workspace.h"
#include "support/Observable.h"

namespace tovrel {

/// Remembers the last application in front other than this one, so that the palette works on the application
/// that the user was working in.
class FrontmostAppMonitor {
  public:
    FrontmostAppMonitor(Workspace& workspace, FrontmostAppResolver resolver);
    ~FrontmostAppMonitor() = default;
    FrontmostAppMonitor(const FrontmostAppMonitor&) = delete;
    FrontmostAppMonitor& operator=(const FrontmostAppMonitor&) = delete;

    /// Begins to watch, starting with the application in front now. Must be called once.
    void start();

    /// The application in front, or the last other one while this program is in front; null when there is
    /// none, or it has quit.
    [[nodiscard]] std::shared_ptr<RunningApplication> resolveTargetApplication();

  private:
    void remember(const std::shared_ptr<RunningApplication>& application);

    Workspace* workspace_;
    FrontmostAppResolver resolver_;
    Subscription activationObserver_;
    std::shared_ptr<RunningApplication> cachedExternalApplication_;
};

} // namespace tovrel
