#pragma once

#include <memory>
#include <vector>

#include "platform/linux/applications/LinuxWorkspace.h"
#include "platform/linux/menus/accessibility/AtspiBus.h"

namespace tovrel {

/// Whether the applications of the session publish their user interface on the accessibility bus. Each call
/// takes at most about two seconds when nobody answers, and some milliseconds otherwise.
class ToolkitAccessibility {
  public:
    ToolkitAccessibility(std::shared_ptr<AtspiBus> bus, std::shared_ptr<LinuxWorkspace> workspace)
        : bus_(std::move(bus)), workspace_(std::move(workspace)) {}

    /// See AtspiBus::isEnabled.
    [[nodiscard]] bool isEnabled() { return bus_->isEnabled(); }

    /// Switches it for the session, and for later ones too: the service behind it (at-spi-bus-launcher) keeps
    /// it in the user's settings, as org.gnome.desktop.interface toolkit-accessibility, provided that their
    /// schema is installed. Returns whether it is switched so now.
    bool setEnabled(bool isEnabled) { return bus_->setEnabled(isEnabled) && bus_->isEnabled() == isEnabled; }

    /// The names of the applications that have a window but are not on the bus, this program aside, topmost
    /// first. Toolkits look only when they start (Qt) or not at all (GTK registers in any case), so these
    /// applications notice the switch only when they are started anew; some never do. Empty when the bus does
    /// not answer.
    [[nodiscard]] std::vector<Text> applicationsToRestart();

  private:
    std::shared_ptr<AtspiBus> bus_;
    std::shared_ptr<LinuxWorkspace> workspace_;
};

} // namespace tovrel
