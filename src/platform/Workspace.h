#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "model/ApplicationIcon.h"
#include "platform/RunningApplication.h"
#include "support/Observable.h"
#include "support/Text.h"

namespace tovrel {

/// An application that the user can start, running or not.
struct InstalledApplication {
    Text bundleIdentifier;
    Text name; ///< To show to the user.
    std::optional<ApplicationIcon> icon;

    friend bool operator==(const InstalledApplication&, const InstalledApplication&) = default;
};

/// The applications of the desktop, installed and running.
class Workspace {
  public:
    virtual ~Workspace() = default;

    /// The application whose window is active; null when none is or its application cannot be known.
    [[nodiscard]] virtual std::shared_ptr<RunningApplication> frontApplication() = 0;

    /// Asks the desktop to bring the application to the front, without waiting for it to happen; that is
    /// told like every activation. False when it has no window to bring there or the request could not be
    /// made.
    virtual bool activate(const RunningApplication& application) = 0;

    /// The observer is called from the main loop each time an application comes to the front, this one
    /// included; with null when it is unknown which one.
    [[nodiscard]] virtual Subscription
    onActivation(std::function<void(const std::shared_ptr<RunningApplication>&)> observer) = 0;

    /// The application with the identifier; absent when it is not installed.
    [[nodiscard]] virtual std::optional<InstalledApplication>
    installedApplication(const Text& bundleIdentifier) = 0;

    /// The applications that the desktop shows in its menus, in no particular order.
    [[nodiscard]] virtual std::vector<InstalledApplication> installedApplications() = 0;

    /// Opens a URL with the desktop's program for its kind. The outcome is not known.
    virtual void open(const Text& url) = 0;
};

} // namespace tovrel
